// Where a program begins that is made without Microsoft's start files.
int main(int argc, char** argv);

extern "C" {
struct StartInfo {
  int newMode;
};
// Of msvcrt.dll, which every Windows has.
int __getmainargs(int* argc, char*** argv, char*** environment, int wildcards, StartInfo* info);
[[noreturn]] void exit(int status);

void mainCRTStartup() {
  int argc = 0;
  char** argv = nullptr;
  char** environment = nullptr;
  StartInfo info = {};
  __getmainargs(&argc, &argv, &environment, 0, &info);
  exit(main(argc, argv));
}
}
