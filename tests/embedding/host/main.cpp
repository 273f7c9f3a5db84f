#include <cstdio>
#include <exception>
#include <string>

std::string FirstInk(const std::string& path);

int main(int argc, char** argv) {
  try {
    std::printf("%s\n", FirstInk(argc == 2 ? argv[1] : "").c_str());
  } catch (const std::exception& error) {
    std::printf("%s\n", error.what());
    return 1;
  }
  return 0;
}
