#include <filesystem>
#include <fstream>
#include <functional>

#include <gtest/gtest.h>

#include "definition/FileLoader.h"
#include "platform/Files.h"
#include "support/TestFiles.h"

namespace tavrin {

namespace {

/// Runs before the file is opened to be read.
std::function<void()> beforeReading;

}  // namespace

// In place of the platform's files: ones that others change in between.
namespace platform {

bool FileExists(const std::wstring& path) {
  return std::filesystem::exists(path);
}

bool GetRegularFileSize(const std::string& path, std::uint64_t* size) {
  std::error_code error;
  *size = std::filesystem::file_size(path, error);
  return !error;
}

bool ReadRegularFile(const std::string& path, unsigned char* block, std::uint32_t n) {
  if (beforeReading) beforeReading();
  std::ifstream file(path, std::ios::binary);
  file.read(reinterpret_cast<char*>(block), n);
  return file.is_open();
}

bool WriteOwnerOnlyFile(const std::string& path, const unsigned char* block, std::uint32_t n) {
  std::ofstream file(path, std::ios::binary);
  file.write(reinterpret_cast<const char*>(block), n);
  return file.is_open();
}

// For the tool alone.
std::FILE* CreateOwnerOnlyFile(const std::string&) {
  return nullptr;
}

}  // namespace platform

namespace {

TEST(FileFault, AFileThatChangesBetweenSizeAndReadKeepsItsFirstSize) {
  const test::TestFolder folder;
  const std::string path = folder.PathOf("printer.dat");
  const struct {
    const char* name;
    std::function<void()> change;
    bool loads;
    std::string content;
  } cases[] = {
      {"shrinks", [&] { folder.Write("printer.dat", "ab"); }, true, std::string("ab\0\0", 4)},
      {"empties", [&] { folder.Write("printer.dat", ""); }, true, std::string(4, '\0')},
      {"grows", [&] { folder.Write("printer.dat", "abcdef"); }, true, "abcd"},
      {"vanishes", [&] { std::filesystem::remove(path); }, false, std::string(4, '\0')},
  };
  for (const auto& c : cases) {
    SCOPED_TRACE(c.name);
    folder.Write("printer.dat", "1234");
    beforeReading = c.change;
    FileLoader loader;
    EXPECT_EQ(loader.LoadFromFile(path), c.loads);
    beforeReading = nullptr;
    EXPECT_EQ(std::string(loader.Data(), loader.Data() + loader.Size()), c.content);
  }
}

}  // namespace
}  // namespace tavrin
