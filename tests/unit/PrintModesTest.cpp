#include <gtest/gtest.h>

#include "definition/IniSnapshot.h"
#include "definition/PrintModes.h"
#include "definition/TextConversion.h"
#include "support/TestFiles.h"

namespace tavrin {
namespace {

TEST(PrintModes, AMissingListKeepsTheModesAndAListOfNothingCompleteDropsThem) {
  const test::TestFolder folder;
  PrinterConfig config;
  const auto readModes = [&](const std::string& lines) {
    IniSnapshot ini(WideCopy(folder.Write("modes.ini", test::Definition(lines))));
    return ReadModes(ini, &config);
  };
  EXPECT_TRUE(readModes("Mode=1\nMode1SliceSize=0.032\nMode1ColorThickness=0.5\nMode1=600,2\n"));
  EXPECT_FALSE(readModes(""));
  ASSERT_EQ(config.Modes.size(), 1u);
  EXPECT_EQ(config.Modes[0]->ColorThickness, 500);
  EXPECT_FALSE(readModes("Mode=1,2\n"));
  EXPECT_EQ(config.Modes.size(), 0u);
}

}  // namespace
}  // namespace tavrin
