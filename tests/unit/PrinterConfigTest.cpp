#include <functional>

#include <gtest/gtest.h>

#include "definition/PrinterConfig.h"
#include "support/TestFiles.h"

namespace tavrin {
namespace {

using test::Definition;
using test::TestFolder;

std::unique_ptr<PrinterConfig> Parsed(const std::string& content) {
  const TestFolder folder;
  auto config = std::make_unique<PrinterConfig>();
  return config->Parse(folder.Write("printer.ini", content)) ? std::move(config) : nullptr;
}

std::unique_ptr<PrinterConfig> ParsedDefinition(const std::string& lines) {
  auto config = Parsed(Definition(lines));
  EXPECT_NE(config, nullptr) << lines;
  return config ? std::move(config) : std::make_unique<PrinterConfig>();
}

TEST(PrinterConfig, OnlyVersionIsMandatory) {
  EXPECT_EQ(Parsed("[printer]\nModelName=M\nIPAddress=10.0.0.1\n"), nullptr);
  EXPECT_EQ(Parsed("[printer]\nVersion=\n"), nullptr);
  EXPECT_EQ(Parsed("[other]\nVersion=1\n"), nullptr);
  EXPECT_EQ(Parsed(""), nullptr);
  EXPECT_FALSE(PrinterConfig().Parse(TestFolder().PathOf("missing.ini")));

  // A configuration that has a version already may be parsed again without one.
  PrinterConfig config;
  config.Version = "1.0";
  const TestFolder folder;
  EXPECT_TRUE(config.Parse(folder.Write("printer.ini", "[printer]\nModelName=M\n")));
  EXPECT_EQ(config.ModelName, "M");
  config.ModelName.clear();
  EXPECT_FALSE(config.Parse(folder.Write("printer.ini", Definition("")))) << "nor without a name";
}

TEST(PrinterConfig, TextsComeAsWritten) {
  const auto config =
      ParsedDefinition("ModelName= \" Two words \" \nIPAddress=192.168.0.9 ;lab\nVersion=2\n");
  EXPECT_EQ(config->ModelName, " Two words ");
  EXPECT_EQ(config->IPAddress, "192.168.0.9 ;lab");
  EXPECT_EQ(config->Version, "1.0") << "the first key of a name counts";
}

TEST(PrinterConfig, CuttingMarginSettingPicksItsThickness) {
  const struct {
    const char* lines;
    std::int32_t setting, thickness;
  } cases[] = {
      {"CuttingMarginThickness0=1\nCuttingMarginThickness=2\n", 0, 0},
      {"CuttingMarginSetting=0\nCuttingMarginThickness0=1\n", 0, 0},
      {"CuttingMarginSetting=2\nCuttingMarginThickness1=1\nCuttingMarginThickness2=0.5\n", 2, 500},
      {"CuttingMarginSetting=3\nCuttingMarginThickness2=0.5\n", 3, 0},
      {"CuttingMarginSetting=-1\nCuttingMarginThickness-1=0.5\n", -1, 500},
      {"CuttingMarginSetting=x\nCuttingMarginThickness1=1\n", 0, 0},
  };
  for (const auto& c : cases) {
    const auto config = ParsedDefinition(c.lines);
    EXPECT_EQ(config->CuttingMarginSetting, c.setting) << c.lines;
    EXPECT_EQ(config->CuttingMarginThickness, c.thickness) << c.lines;
  }

  // Setting 0 takes a thickness away that was there before.
  const TestFolder folder;
  PrinterConfig config;
  config.CuttingMarginThickness = 500;
  ASSERT_TRUE(config.Parse(folder.Write("printer.ini", Definition("CuttingMarginSetting=0\n"))));
  EXPECT_EQ(config.CuttingMarginThickness, 0);
}

}  // namespace
}  // namespace tavrin
