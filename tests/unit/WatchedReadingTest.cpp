#include <filesystem>
#include <sstream>

#include <gtest/gtest.h>

#include "check/KeyFacts.h"
#include "check/Reading.h"
#include "support/TestFiles.h"

namespace tavrin::tool {
namespace {

std::string TextOf(const InkTable& table) {
  std::ostringstream out;
  for (std::size_t i = 0; i < table.size(); ++i)
    out << table[i].code << '=' << table[i].name << ' ';
  return out.str();
}

/// Every field of a configuration.
std::string TextOf(const PrinterConfig& c) {
  std::ostringstream out;
  out << c.ModelName << '\n' << c.Version << '\n' << c.IPAddress << '\n';
  out << c.PrinterSize.x << ' ' << c.PrinterSize.y << ' ' << c.PrinterSize.z << ' ' << c.PrintMargin
      << ' ' << c.CuttingMarginSetting << ' ' << c.CuttingMarginThickness << '\n';
  out << c.SupportThickness << ' ' << c.SupportExtend << ' ' << c.SupportExtendAngle << ' '
      << c.DetachLayerSize << ' ' << c.SupportSize << ' ' << c.HeadBandSize << '\n';
  out << c.AntiAliasing << c.Reverse << c.WhiteWhite << c.AutoCleaningEnabled << c.NCUEnabled << ' '
      << c.DefaultMode << '\n';
  for (const auto& mode : c.Modes) {
    out << mode->Number << ": " << mode->SliceSize << ' ' << mode->ColorThickness << ' '
        << mode->FirstValue << ' ' << mode->SecondValue << ' ' << mode->Limited << ' '
        << mode->LimitedContinuous << '\n';
  }
  out << TextOf(c.Colors) << '\n' << TextOf(c.InkTypes) << '\n' << c.InkSlotNum << '\n';
  for (const auto& slot : c.InkSlots)
    out << slot->GetSlotNumber() << slot->IsValid() << slot->InkIdString() << slot->InkNameString();
  for (const auto& category : c.InkCategories) {
    out << '\n' << category->name << ':';
    for (const NumberedInkSlot* slot : category->slots)
      out << ' ' << slot->GetSlotNumber();
  }
  return out.str();
}

TEST(WatchedReading, MakesTheConfigurationThatLoadingMakes) {
  const test::TestFolder folder;
  int definitions = 0;
  for (const auto& entry : std::filesystem::directory_iterator(TAVRIN_TEST_DATA_DIR "/check")) {
    if (entry.path().extension() != ".ini") continue;
    SCOPED_TRACE(entry.path());
    const std::string content = test::ReadWhole(entry.path().string());
    const Reading reading(Bytes(content.begin(), content.end()));
    ++definitions;
    PrinterConfig loaded;
    ASSERT_EQ(loaded.Load(folder.WriteEnciphered("a.dat", content)), reading.loads);
    if (!reading.loads) continue;
    EXPECT_EQ(TextOf(*reading.config), TextOf(loaded));
  }
  EXPECT_GT(definitions, 30);
}

TEST(KnownKeys, AreMatchedByTheirNumbersAndHaveFacts) {
  const std::vector<KnownKey> keys = ListKnownKeys();
  EXPECT_EQ(keys.size(), 34u);
  for (const KnownKey& key : keys) {
    EXPECT_NO_THROW(FactsOf(key.Shape()));
    for (const KnownKey& other : keys) {
      std::int32_t number = -1;
      EXPECT_EQ(other.Matches(key.WithNumber(12), &number), &other == &key) << key.Shape();
    }
  }
}

}  // namespace
}  // namespace tavrin::tool
