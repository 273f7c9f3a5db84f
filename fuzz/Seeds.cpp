// Makes the seeds of all fuzz targets from the examples and the test data: Seeds DIRECTORY.
#include <filesystem>
#include <fstream>
#include <sstream>
#include <string>

#include "definition/FileCipher.h"
#include "support/TestFiles.h"
#include "unit/TestText.h"

namespace tavrin::fuzz {
namespace {

namespace fs = std::filesystem;

class SeedFolder {
 public:
  SeedFolder(const fs::path& parent, const char* target) : folder_(parent / target) {
    fs::create_directories(folder_);
  }

  void Add(const std::string& name, const std::string& content) const {
    std::ofstream(folder_ / name, std::ios::binary) << content;
  }

 private:
  fs::path folder_;
};

std::string Enciphered(std::string block) {
  EncryptBuffer(reinterpret_cast<unsigned char*>(block.data()),
                static_cast<std::uint32_t>(block.size()));
  return block;
}

void MakeDefinitions(const fs::path& parent) {
  const SeedFolder definitions(parent, "definition");
  const SeedFolder files(parent, "initialize");
  const SeedFolder values(parent, "conversion");
  for (const auto& example : fs::directory_iterator(TAVRIN_EXAMPLES_DIR)) {
    if (example.path().extension() != ".ini") continue;
    const std::string name = example.path().stem().string();
    const std::string plain = test::ReadWhole(example.path().string());
    definitions.Add(name, plain);
    files.Add(name, Enciphered(plain));
    std::istringstream lines(plain);
    for (std::string line; std::getline(lines, line);) {
      const std::size_t equals = line.find('=');
      if (equals != std::string::npos) values.Add(line.substr(0, equals), line.substr(equals + 1));
    }
  }
}

void MakeProfiles(const fs::path& parent) {
  const SeedFolder profiles(parent, "profile");
  const std::string nul(1, '\0');
  for (const auto& row : test::Rows(test::ReadWhole(TAVRIN_TEST_DATA_DIR "/profile-cases.tsv"))) {
    if (row.at(2) == "MISSING") continue;
    profiles.Add(row[0], test::Unescape(row.at(3)) + nul + test::Unescape(row.at(4)) + nul +
                             test::Unescape(row.at(5)) + nul + test::Unescape(row[2]));
  }
}

}  // namespace
}  // namespace tavrin::fuzz

int main(int argc, char** argv) {
  if (argc != 2) return 2;
  tavrin::fuzz::MakeDefinitions(argv[1]);
  tavrin::fuzz::MakeProfiles(argv[1]);
  return 0;
}
