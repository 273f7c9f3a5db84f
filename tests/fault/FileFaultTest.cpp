#include <filesystem>
#include <functional>

#include <gtest/gtest.h>

#include "definition/FileLoader.h"
#include "platform/Files.h"
#include "support/TestFiles.h"

namespace tavrin {

namespace {

/// Runs before each file is opened for reading.
std::function<void()> beforeOpening;

}  // namespace

// In place of the platform's files: ones that others change in between.
namespace platform {

bool FileExists(const std::wstring& path) {
  return std::filesystem::exists(path);
}

std::FILE* OpenRegularFile(const std::string& path, std::uint64_t* size) {
  if (beforeOpening) beforeOpening();
  std::FILE* file = std::fopen(path.c_str(), "rb");
  if (file != nullptr) *size = std::filesystem::file_size(path);
  return file;
}

std::FILE* CreateOwnerOnlyFile(const std::string& path) {
  return std::fopen(path.c_str(), "wb");
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
    int openings = 0;
    beforeOpening = [&] {
      if (++openings == 2) c.change();
    };
    FileLoader loader;
    EXPECT_EQ(loader.LoadFromFile(path), c.loads);
    beforeOpening = nullptr;
    EXPECT_EQ(openings, 2);
    EXPECT_EQ(std::string(loader.Data(), loader.Data() + loader.Size()), c.content);
  }
}

}  // namespace
}  // namespace tavrin
