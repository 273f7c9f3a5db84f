#include "support/TestFiles.h"

#include <cstdlib>
#include <fstream>
#include <memory>
#include <random>
#include <sstream>

#include <gtest/gtest.h>

#include "definition/FileCipher.h"

namespace tavrin::test {

namespace {

/// Gives the process a temporary directory of its own: plain copies are named after the program and
/// the definition, so two runs of the same tests would share them.
class OwnTemporaryDirectory : public testing::Environment {
 public:
  void SetUp() override {
    folder_ = std::make_unique<TestFolder>();
    for (std::size_t i = 0; i < std::size(kVariables); ++i) {
      settings_[i] = kVariables[i] + folder_->PathOf("");
      putenv(settings_[i].data());
    }
  }
  // The variables go on pointing into settings_, which lives as long as the process.
  void TearDown() override { folder_.reset(); }

 private:
  static constexpr const char* kVariables[] = {"TMPDIR=", "TMP=", "TEMP="};

  std::unique_ptr<TestFolder> folder_;
  std::string settings_[std::size(kVariables)];
};

const testing::Environment* const kEnvironment =
    testing::AddGlobalTestEnvironment(new OwnTemporaryDirectory);

}  // namespace

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

std::string Definition(const std::string& lines) {
  return "[printer]\nVersion=1.0\n" + lines;
}

}  // namespace tavrin::test
