#include "support/TestFiles.h"

#include <fstream>
#include <random>
#include <sstream>

#include "definition/FileCipher.h"

namespace tavrin::test {

TestFolder::TestFolder()
    : folder_(std::filesystem::temp_directory_path() /
              ("tavrin-test-" + std::to_string(std::random_device()()))) {
  std::filesystem::create_directories(folder_);
}

TestFolder::~TestFolder() {
  std::error_code error;
  std::filesystem::remove_all(folder_, error);
}

std::string TestFolder::Write(const std::string& name, const std::string& content) const {
  std::ofstream(folder_ / name, std::ios::binary) << content;
  return PathOf(name);
}

std::string TestFolder::WriteEnciphered(const std::string& name, const std::string& content) const {
  std::string block = content;
  EncryptBuffer(reinterpret_cast<unsigned char*>(block.data()),
                static_cast<std::uint32_t>(block.size()));
  return Write(name, block);
}

std::string ReadWhole(const std::string& path) {
  std::ostringstream content;
  content << std::ifstream(path, std::ios::binary).rdbuf();
  return content.str();
}

long EntriesOf(const std::string& path) {
  const std::filesystem::directory_iterator entries(path);
  return static_cast<long>(std::distance(begin(entries), end(entries)));
}

std::string Definition(const std::string& lines) {
  return "[printer]\nVersion=1.0\n" + lines;
}

}  // namespace tavrin::test
