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

TEST(PrinterConfig, NumbersFollowTheirSyntax) {
  constexpr std::int32_t kOverflow = -2147483647 - 1;
  const auto margin = [](const PrinterConfig& c) -> double { return c.PrintMargin; };
  const auto headBand = [](const PrinterConfig& c) -> double { return c.HeadBandSize; };
  const auto defaultMode = [](const PrinterConfig& c) -> double { return c.DefaultMode; };
  const auto detach = [](const PrinterConfig& c) -> double { return c.DetachLayerSize; };
  const struct {
    const char* line;
    double (*field)(const PrinterConfig&);
    double value;
  } cases[] = {
      {"PrintMargin=2.5", margin, 2500},         {"PrintMargin=0.0019", margin, 1},
      {"PrintMargin=1.005", margin, 1004},       {"PrintMargin=-3", margin, -3000},
      {"PrintMargin=wide", margin, 5},           {"PrintMargin=3000000", margin, kOverflow},
      {"PrintMargin=-1e300", margin, kOverflow}, {"HeadBandSize=60.25", headBand, 60.25},
      {"HeadBandSize=none", headBand, 53.7},     {"DefaultMode=7.9", defaultMode, 7},
      {"DefaultMode=-1", defaultMode, -1},       {"DefaultMode=x", defaultMode, 2},
      {"DetachLayerSize=0.75", detach, 750},
  };
  for (const auto& c : cases)
    EXPECT_EQ(c.field(*ParsedDefinition(c.line)), c.value) << c.line;
}

TEST(PrinterConfig, BuildVolumeNeedsThreeFields) {
  const struct {
    const char* value;
    double x, y, z;
  } cases[] = {
      {"200,150,100", 200, 150, 100}, {"200, 150 ,100.5mm,7", 200, 150, 100.5},
      {"200,150", 508, 508, 508},     {"200,150,", 508, 508, 508},
      {"200,150,x", 200, 150, 0},     {"x,,100", 0, 0, 100},
  };
  for (const auto& c : cases) {
    const auto config = ParsedDefinition(std::string("PrinterSize=") + c.value);
    EXPECT_EQ(config->PrinterSize.x, c.x) << c.value;
    EXPECT_EQ(config->PrinterSize.y, c.y) << c.value;
    EXPECT_EQ(config->PrinterSize.z, c.z) << c.value;
  }
}

TEST(PrinterConfig, SwitchesCompareWithOneAndWhiteWhiteWithAHundred) {
  using Switch = bool PrinterConfig::*;
  const struct {
    const char* line;
    Switch field;
    bool value;
  } cases[] = {
      {"AntiAliasing=2", &PrinterConfig::AntiAliasing, false},
      {"AntiAliasing=1", &PrinterConfig::AntiAliasing, true},
      {"AntiAliasing=on", &PrinterConfig::AntiAliasing, true},
      {"Reverse=1", &PrinterConfig::Reverse, true},
      {"Reverse=-1", &PrinterConfig::Reverse, false},
      {"AutoCleaningEnabled=0", &PrinterConfig::AutoCleaningEnabled, false},
      {"NCUEnabled=1", &PrinterConfig::NCUEnabled, true},
      {"White_White=0", &PrinterConfig::WhiteWhite, true},
      {"White_White=1", &PrinterConfig::WhiteWhite, true},
      {"White_White=100", &PrinterConfig::WhiteWhite, false},
      {"White_White=off", &PrinterConfig::WhiteWhite, false},
  };
  for (const auto& c : cases)
    EXPECT_EQ((*ParsedDefinition(c.line)).*c.field, c.value) << c.line;
}

TEST(PrinterConfig, SupportSizeFollowsExtentAndAngleUnlessSet) {
  const struct {
    const char* lines;
    std::int32_t size;
  } cases[] = {
      {"SupportExtend=1\nSupportExtendAngle=1\n", -2},
      {"SupportExtend=1\n", -1},
      {"SupportExtend=1.5\nSupportExtendAngle=1.5\n", 0},
      {"SupportExtend=2\n", 1},
      {"SupportExtend=2.0\nSupportExtendAngle=2.0\n", 2},
      {"SupportExtend=2.5\nSupportExtendAngle=2\n", 3},
      {"SupportExtend=3\nSupportExtendAngle=2\n", 4},
      {"SupportExtend=3.5\nSupportExtendAngle=2\n", 5},
      {"SupportExtend=4\nSupportExtendAngle=2.0004\n", 6},
      {"SupportExtend=4\nSupportExtendAngle=1.9996\n", 0},
      {"SupportExtend=2.5\n", 0},
      {"SupportExtend=4\nSupportExtendAngle=1e9\n", 0},
      {"SupportExtend=2\nSupportExtendAngle=2\nSupportSizeSetting=9\n", 9},
      {"SupportExtend=2\nSupportExtendAngle=2\nSupportSizeSetting=-1\n", -1},
      {"SupportExtend=2\nSupportExtendAngle=2\nSupportSizeSetting=big\n", 2},
  };
  for (const auto& c : cases)
    EXPECT_EQ(ParsedDefinition(c.lines)->SupportSize, c.size) << c.lines;
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

TEST(PrinterConfig, SideSupportGrowsWithTheHeight) {
  const struct {
    const char* lines;
    std::int32_t height, thickness;
  } cases[] = {
      {"", 10000, 1843},
      {"", 1, 1500 + 81},
      {"", 0, 0},
      {"", -5, 0},
      {"SupportExtendAngle=0\n", 10000, 1500},
      {"SupportExtendAngle=-1\n", 10000, 1500},
      {"SupportExtendAngle=nan\n", 10000, 1500},
      {"SupportExtendAngle=45\nSupportExtend=0\n", 10000, 13099},
      // The sum of the heights and the result wrap; a product beyond 32 bits is INT32_MIN.
      {"SupportExtendAngle=45\nSupportExtend=0\n", 2147483647, -2147480548},
      {"SupportExtendAngle=89.9999999\n", 100000, -2147482148},
  };
  for (const auto& c : cases) {
    EXPECT_EQ(ParsedDefinition(c.lines)->SideSupportThickness(c.height), c.thickness)
        << c.lines << c.height;
  }
}

}  // namespace
}  // namespace tavrin
