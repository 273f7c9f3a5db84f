// One of several processes of one program that load definitions of the same file name at the same
// time: rival_loads FOLDER MODEL COUNT TEMPORARY loads FOLDER/printer.dat, which it makes first,
// COUNT times with the temporary directory TEMPORARY and holds each load to the model name that it
// wrote.
#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <string>

#include "TavrinLib.h"
#include "definition/FileCipher.h"

namespace {

std::string MakeDefinition(const std::filesystem::path& folder, const std::string& model) {
  std::string block = "[printer]\nVersion=1\nModelName=" + model + "\n";
  tavrin::EncryptBuffer(reinterpret_cast<unsigned char*>(block.data()),
                        static_cast<std::uint32_t>(block.size()));
  std::filesystem::create_directories(folder);
  const std::filesystem::path file = folder / "printer.dat";
  std::ofstream(file, std::ios::binary) << block;
  return file.string();
}

void SetTemporaryDirectory(const std::filesystem::path& directory) {
  static std::string settings[] = {"TMPDIR=", "TMP=", "TEMP="};  // the environment keeps them
  for (std::string& setting : settings) {
    setting += std::filesystem::absolute(directory).string();
    putenv(setting.data());
  }
}

std::string LoadedModel() {
  char info[384] = {};
  return TavrinGetInfo(info) ? info : "";
}

}  // namespace

int main(int argc, char** argv) {
  if (argc != 5) return 2;
  SetTemporaryDirectory(argv[4]);
  const std::string model = argv[2];
  const std::string definition = MakeDefinition(argv[1], model);
  const long count = std::strtol(argv[3], nullptr, 10);
  long failed = 0;
  long wrong = 0;
  for (long i = 0; i < count; ++i) {
    if (!TavrinInitialize(definition.c_str())) {
      ++failed;
    } else if (LoadedModel() != model) {
      ++wrong;
    }
  }
  TavrinFinalize();
  std::fprintf(stderr, "%s: %ld loads, %ld failed, %ld wrong answers\n", argv[2], count, failed,
               wrong);
  return failed == 0 && wrong == 0 ? 0 : 1;
}
