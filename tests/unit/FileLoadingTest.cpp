#include <fstream>
#include <functional>
#include <utility>

#include <gtest/gtest.h>

#include "definition/FileBytes.h"
#include "definition/FileLoader.h"
#include "definition/IniFile.h"
#include "definition/PrinterConfig.h"
#include "definition/TemporaryPath.h"
#include "definition/TextConversion.h"
#include "support/TestFiles.h"

namespace tavrin {
namespace {

using test::Definition;
using test::ReadWhole;
using test::TestFolder;

TEST(Buffer, AllocationZeroesAndReplaces) {
  Buffer buffer;
  EXPECT_TRUE(buffer.IsEmpty());
  EXPECT_TRUE(buffer.Release());
  ASSERT_TRUE(buffer.Allocate(3));
  buffer.Data()[2] = 'x';
  ASSERT_TRUE(buffer.Allocate(4));
  EXPECT_EQ(std::string(buffer.Data(), buffer.Data() + 4), std::string(4, '\0'));
  EXPECT_FALSE(buffer.Allocate(0));
  EXPECT_TRUE(buffer.IsEmpty());
  EXPECT_EQ(buffer.Size(), 0u);
}

TEST(FileLoader, LoadsWholeFilesAndSavesThem) {
  const TestFolder folder;
  const std::string content("a\r\n\x1A\0b", 6);
  FileLoader loader;
  platform::PlainCopy copy(folder.PathOf("copy"));
  EXPECT_FALSE(loader.SaveToFile(&copy));
  EXPECT_FALSE(FileExists(WideCopy(copy.Path())));

  ASSERT_TRUE(loader.LoadFromFile(folder.Write("file", content)));
  EXPECT_EQ(std::string(loader.Data(), loader.Data() + loader.Size()), content);
  folder.Write("copy", "a longer file that is replaced");
  ASSERT_TRUE(loader.SaveToFile(&copy));
  EXPECT_EQ(ReadWhole(copy.Path()), content);

  std::filesystem::resize_file(folder.PathOf("file"), (std::uintmax_t{1} << 32) + 3);
  ASSERT_TRUE(loader.LoadFromFile(folder.PathOf("file")));
  EXPECT_EQ(loader.Size(), 3u) << "sizes have 32 bits";

  EXPECT_FALSE(loader.LoadFromFile(folder.Write("empty", "")));
  EXPECT_TRUE(loader.IsEmpty());
  EXPECT_FALSE(loader.LoadFromFile(folder.PathOf("missing")));
  EXPECT_FALSE(loader.LoadFromFile(folder.PathOf("")));
}

/// Lets others rewrite the file once its size is known.
class WatchedLoader : public FileLoader {
 public:
  explicit WatchedLoader(std::function<void()> rewrite) : rewrite_(std::move(rewrite)) {}
  bool Allocate(std::uint32_t n) override {
    rewrite_();
    return FileLoader::Allocate(n);
  }

 private:
  std::function<void()> rewrite_;
};

TEST(FileLoader, AFileThatChangesAfterItsSizeWasAskedKeepsThatSize) {
  const TestFolder folder;
  for (const auto& [rewritten, expected] :
       {std::pair("ab", std::string("ab\0\0", 4)), std::pair("", std::string(4, '\0')),
        std::pair("abcdef", std::string("abcd"))}) {
    const std::string path = folder.Write("printer.dat", "1234");
    WatchedLoader loader([&, text = rewritten] {
      EXPECT_EQ(ReadWhole(path), "1234") << "open for reading to others, too";
      folder.Write("printer.dat", text);
    });
    EXPECT_TRUE(loader.LoadFromFile(path));
    EXPECT_EQ(std::string(loader.Data(), loader.Data() + loader.Size()), expected);
  }
}

TEST(FileBytes, AnEmptyBlockMakesNoFileAndAnOpenFileIsShared) {
  const TestFolder folder;
  const std::string path = folder.PathOf("file");
  const unsigned char byte = 'x';
  EXPECT_FALSE(WriteFileBytes(path, &byte, 0));
  EXPECT_FALSE(WriteFileBytes(path, nullptr, 1));
  EXPECT_FALSE(std::filesystem::exists(path));
  std::FILE* file = CreateOwnerOnlyFile(path);
  EXPECT_TRUE(std::ifstream(path).is_open());
  EXPECT_EQ(std::fclose(file), 0);
}

TEST(TemporaryPath, NameComesFromTheHostAndTheDefinition) {
  const struct {
    const char* module;
    const char* definition;
    const char* name;
  } cases[] = {
      {"C:\\Program Files\\Modeler.exe", "D:\\cfg\\printer.dat", "Modeler_printer.bin"},
      {"/opt/host/modeler", "printer", "modeler_printer.bin"},
      {"/opt/ho.st/modeler", "cfg/a.b.ini", "modeler_a.b.bin"},
      {"a.b.exe", "d.x\\printer", "a.b_printer.bin"},
      {"", "", "_.bin"},
  };
  for (const auto& c : cases)
    EXPECT_EQ(TemporaryName(c.module, c.definition), c.name);
}

TEST(TemporaryPath, LiesRightInTheTemporaryDirectory) {
  const std::filesystem::path path = MakeTemporaryPath("cfg/printer.dat");
  EXPECT_EQ(path.parent_path() / "", std::filesystem::temp_directory_path() / "");
  const std::string name = path.filename().string();
  EXPECT_NE(name.find("tavrin_unit_tests"), std::string::npos);
  EXPECT_NE(name.find("_printer.bin"), std::string::npos);
}

TEST(Load, KeepsTheDecipheredBytesAndRemovesThePlainCopy) {
  const TestFolder folder;
  const std::string content = Definition("ModelName=M\n");
  const std::string path = folder.WriteEnciphered("printer.dat", content);
  PrinterConfig config;
  ASSERT_TRUE(config.Load(path));
  EXPECT_EQ(config.ModelName, "M");
  EXPECT_EQ(
      std::string(config.Definition->Data(), config.Definition->Data() + config.Definition->Size()),
      content);
  EXPECT_FALSE(std::filesystem::exists(MakeTemporaryPath(path)));

  // Without "Version" the parse fails, and the copy goes all the same.
  const std::string rejected = folder.WriteEnciphered("rejected.dat", "[printer]\nModelName=M\n");
  EXPECT_FALSE(PrinterConfig().Load(rejected));
  EXPECT_FALSE(std::filesystem::exists(MakeTemporaryPath(rejected)));
}

TEST(Load, WhatCannotBeReadMakesNoPlainCopy) {
  const TestFolder folder;
  for (const std::string& path :
       {folder.PathOf("missing.dat"), folder.Write("empty.dat", ""), folder.PathOf("")}) {
    // A file that lies where the copy would be tells whether one was made.
    const std::string copyPath = MakeTemporaryPath(path);
    folder.Write(copyPath, "untouched");
    EXPECT_FALSE(PrinterConfig().Load(path)) << path;
    EXPECT_EQ(ReadWhole(copyPath), "untouched") << path;
    std::filesystem::remove(copyPath);
  }
}

TEST(Load, ACopyThatCannotBeCreatedLoadsNothing) {
  const TestFolder folder;
  const std::string path = folder.WriteEnciphered("printer.dat", Definition(""));
  const std::filesystem::path obstacle = MakeTemporaryPath(path);
  std::filesystem::create_directories(obstacle / "in the way");
  EXPECT_FALSE(PrinterConfig().Load(path));
  EXPECT_TRUE(std::filesystem::remove(obstacle / "in the way"));
  EXPECT_FALSE(PrinterConfig().Load(path));
  EXPECT_FALSE(std::filesystem::exists(obstacle)) << "an empty one is taken away";
  EXPECT_TRUE(PrinterConfig().Load(path));
}

}  // namespace
}  // namespace tavrin
