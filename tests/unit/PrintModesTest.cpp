#include <array>

#include <gtest/gtest.h>

#include "definition/PrintModes.h"
#include "support/TestFiles.h"

namespace tavrin {
namespace {

using test::Definition;
using test::TestFolder;

/// The fields of a mode in their order.
using Fields = std::array<std::int32_t, 7>;

std::vector<Fields> FieldsOf(const PrinterConfig& config) {
  std::vector<Fields> all;
  for (const auto& mode : config.Modes) {
    all.push_back({mode->Number, mode->SliceSize, mode->ColorThickness, mode->SecondValue,
                   mode->FirstValue, mode->Limited, mode->LimitedContinuous});
  }
  return all;
}

std::vector<Fields> ModesOf(const std::string& lines) {
  const TestFolder folder;
  PrinterConfig config;
  EXPECT_TRUE(config.Parse(folder.Write("printer.ini", Definition(lines))));
  return FieldsOf(config);
}

const char* const kMode1 = "Mode1SliceSize=0.032\nMode1ColorThickness=0.5\nMode1=600,2\n";

TEST(PrintModes, EachKeyDecidesWhetherTheModeIsTaken) {
  const Fields plain = {1, 32, 500, 2, 600, false, -1};
  const struct {
    std::string lines;
    std::vector<Fields> modes;
  } cases[] = {
      {std::string("Mode=1,1\n") + kMode1, {plain, plain}},
      {std::string("Mode=\n") + kMode1, {}},
      {std::string("Mode=x,,\n") + kMode1, {}},
      {std::string("Mode=3,x,1\n") + kMode1 +
           "Mode3SliceSize=0.016\nMode3ColorThickness=0.3\n"
           "Mode3=1200,4\nLimitationMode=2,3\n",
       {{3, 16, 300, 4, 1200, true, -1}, plain}},
      {kMode1, {}},
      {std::string("Mode=1\nLimitationMode=2,9\n") + kMode1, {plain}},
      {std::string("Mode=1\nMode1LimitedContinuous=5\n") + kMode1, {{1, 32, 500, 2, 600, 0, 5}}},
      {std::string("Mode=1\nMode1LimitedContinuous=x\n") + kMode1, {plain}},
      {"Mode=1\nMode1ColorThickness=0.5\nMode1=600,2\n", {}},
      {"Mode=1\nMode1SliceSize=thin\nMode1ColorThickness=0.5\nMode1=600,2\n", {}},
      {"Mode=1\nMode1SliceSize=0.032\nMode1=600,2\n", {}},
      {"Mode=1\nMode1SliceSize=0.032\nMode1ColorThickness=0.5\n", {}},
      {"Mode=1\nMode1SliceSize=0.032\nMode1ColorThickness=0.5\nMode1=600\n", {}},
      {"Mode=1\nMode1SliceSize=0.032\nMode1ColorThickness=0.5\nMode1=600,x\n", {}},
      {"Mode=1\nMode1SliceSize=0.032\nMode1ColorThickness=0.5\nMode1=x,2\n", {}},
      {"Mode=1\nMode1SliceSize=0.0004\nMode1ColorThickness=0.5\nMode1=600,2,9\n",
       {{1, 0, 500, 2, 600, false, -1}}},
      {"Mode=-1\nMode-1SliceSize=-1\nMode-1ColorThickness=1e9\nMode-1=6,2\n",
       {{-1, -1000, -2147483647 - 1, 2, 6, false, -1}}},
  };
  for (const auto& c : cases)
    EXPECT_EQ(ModesOf(c.lines), c.modes) << c.lines;
}

TEST(PrintModes, AMissingListKeepsTheModesAndAListOfNothingCompleteDropsThem) {
  const TestFolder folder;
  PrinterConfig config;
  ASSERT_TRUE(
      config.Parse(folder.Write("modes.ini", Definition(std::string("Mode=1\n") + kMode1))));
  ASSERT_TRUE(config.Parse(folder.Write("none.ini", Definition(""))));
  EXPECT_EQ(config.Modes.size(), 1u);
  ASSERT_TRUE(config.Parse(folder.Write("bare.ini", Definition("Mode=1,2\n"))));
  EXPECT_EQ(config.Modes.size(), 0u);
}

}  // namespace
}  // namespace tavrin
