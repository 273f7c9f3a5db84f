#include <gtest/gtest.h>

#include "definition/FileCipher.h"
#include "definition/PrinterConfig.h"
#include "definition/TemporaryPath.h"
#include "output/ModelingConditionsWriter.h"
#include "platform/StreamCipher.h"
#include "support/TestFiles.h"

namespace tavrin {

// In place of the platform's cipher: one that always refuses.
namespace platform {

bool EncryptInPlace(unsigned char*, std::uint32_t) {
  return false;
}

bool DecryptInPlace(unsigned char*, std::uint32_t) {
  return false;
}

}  // namespace platform

namespace {

TEST(CipherFault, ARefusedDecipheringFailsTheLoadBeforeAnyPlainCopy) {
  const test::TestFolder folder;
  const std::string content = test::Definition("");
  const std::string path = folder.Write("printer.dat", content);
  const std::string copyPath = MakeTemporaryPath(path);
  folder.Write(copyPath, "untouched");

  PrinterConfig config;
  EXPECT_FALSE(config.Load(path));
  EXPECT_EQ(test::ReadWhole(copyPath), "untouched");
  ASSERT_NE(config.Definition, nullptr);
  EXPECT_EQ(config.Definition->Size(), content.size()) << "the loader keeps the bytes";
  std::filesystem::remove(copyPath);
}

TEST(CipherFault, ARefusedEncipheringIsWrittenAsItStands) {
  const test::TestFolder folder;
  PrinterConfig config;
  config.Definition = std::make_unique<FileLoader>();
  ASSERT_TRUE(config.Definition->LoadFromFile(folder.Write("printer.ini", "plain")));
  const std::string path = folder.PathOf("conditions.dat");
  EXPECT_TRUE(CreateModelingConditionsWriter(path)->Write(&config));
  EXPECT_EQ(test::ReadWhole(path), "plain");

  EXPECT_FALSE(CreateModelingConditionsWriter(path)->Write(nullptr));
  EXPECT_FALSE(
      CreateModelingConditionsWriter(path)->Write(std::make_unique<PrinterConfig>().get()));
  config.Definition->Release();
  EXPECT_FALSE(CreateModelingConditionsWriter(path)->Write(&config));
}

}  // namespace
}  // namespace tavrin
