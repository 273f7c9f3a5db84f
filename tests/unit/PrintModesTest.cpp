#include <gtest/gtest.h>

#include "definition/PrinterConfig.h"
#include "support/TestFiles.h"

namespace tavrin {
namespace {

using test::Definition;

TEST(PrintModes, AMissingListKeepsTheModesAndAListOfNothingCompleteDropsThem) {
  const test::TestFolder folder;
  PrinterConfig config;
  ASSERT_TRUE(config.Parse(folder.Write(
      "modes.ini",
      Definition("Mode=1\nMode1SliceSize=0.032\nMode1ColorThickness=0.5\nMode1=600,2\n"))));
  ASSERT_TRUE(config.Parse(folder.Write("none.ini", Definition(""))));
  ASSERT_EQ(config.Modes.size(), 1u);
  EXPECT_EQ(config.Modes[0]->ColorThickness, 500);
  ASSERT_TRUE(config.Parse(folder.Write("bare.ini", Definition("Mode=1,2\n"))));
  EXPECT_EQ(config.Modes.size(), 0u);
}

}  // namespace
}  // namespace tavrin
