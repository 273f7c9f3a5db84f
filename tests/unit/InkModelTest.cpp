#include <memory>

#include <gtest/gtest.h>

#include "definition/PrinterConfig.h"
#include "support/Owned.h"
#include "support/TestFiles.h"

namespace tavrin {
namespace {

using test::Definition;
using test::Owned;
using test::TestFolder;

using Slots = std::vector<std::int32_t>;
using Categories = std::vector<std::pair<std::string, Slots>>;
using Table = std::vector<std::pair<std::int32_t, std::string>>;

std::unique_ptr<PrinterConfig> Parsed(const std::string& lines) {
  const TestFolder folder;
  auto config = std::make_unique<PrinterConfig>();
  EXPECT_TRUE(config->Parse(folder.Write("printer.ini", Definition(lines)))) << lines;
  return config;
}

Table TableOf(const InkTable& table) {
  Table entries;
  for (std::size_t i = 0; i < table.size(); ++i) {
    entries.emplace_back(table[i].code, table[i].name);
  }
  return entries;
}

Slots SlotsOf(const InkCategoryImpl& category) {
  std::int32_t* numbers = nullptr;
  std::int32_t count = 0;
  if (!category.ListSlotNumbers(&numbers, &count)) return {};
  const Owned<std::int32_t> owned(numbers);
  return Slots(numbers, numbers + count);
}

Categories CategoriesOf(const PrinterConfig& config) {
  Categories categories;
  for (const auto& category : config.InkCategories) {
    categories.emplace_back(category->name, SlotsOf(*category));
  }
  return categories;
}

/// Slot keys for pairs of colour and ink type code.
std::string SlotLines(const std::vector<std::pair<std::int32_t, std::int32_t>>& slots) {
  std::string lines = "PrinterInkSlotNum=" + std::to_string(slots.size()) + "\n";
  for (std::size_t i = 0; i < slots.size(); ++i) {
    const std::string number = std::to_string(i + 1);
    lines += "ColorCodeInkSlot" + number + "=" + std::to_string(slots[i].first) + "\n";
    lines += "InkTypeCodeInkSlot" + number + "=" + std::to_string(slots[i].second) + "\n";
  }
  return lines;
}

const Table kDefaultColors = {{1, "Cyan"},   {2, "Magenta"}, {3, "Yellow"},   {4, "Black"},
                              {15, "White"}, {24, "Clear"},  {56, "Support"}, {57, "Pure Clear"}};
const Table kDefaultInkTypes = {{113, "KP-300"}, {114, "LX-300"}, {134, "KP-310"}};
const Categories kDefaultCategories = {{"Support", {1, 2}},
                                       {"Clear", {3}},
                                       {"White", {4}},
                                       {"Color", {5, 6, 7, 8}},
                                       {"[Total] Model Ink", {3, 4, 5, 6, 7, 8}},
                                       {"[Total] All Ink", {1, 2, 3, 4, 5, 6, 7, 8}}};

TEST(InkSection, ColorsComeFromTheFileOrAreTheBuiltInOnes) {
  const std::string one = "Color001Code=9\nColor001Name=Rose\n";
  const std::string three = "Color003Code=8\nColor003Name=Sky\n";
  const struct {
    std::string lines;
    Table colors;
  } cases[] = {
      {"", kDefaultColors},
      {"NumOfColor=0\n" + one, kDefaultColors},
      {"NumOfColor=-3\n" + one, kDefaultColors},
      {"NumOfColor=x\n" + one, kDefaultColors},
      {one, kDefaultColors},
      {"NumOfColor=3\n" + one + three, {{9, "Rose"}, {8, "Sky"}}},
      {"NumOfColor=2\n" + one + three, {{9, "Rose"}}},
      {"NumOfColor=2\nColor1Code=9\nColor1Name=Rose\n", {}},
      {"NumOfColor=1\nColor001Code=9\n", {}},
      {"NumOfColor=1\nColor001Name=Rose\n", {}},
      {"NumOfColor=1\nColor001Code=x\nColor001Name=Rose\n", {}},
      {"NumOfColor=1000\nColor1000Code=-7\nColor1000Name=Far\n" + three, {{8, "Sky"}, {-7, "Far"}}},
  };
  for (const auto& c : cases)
    EXPECT_EQ(TableOf(Parsed(c.lines)->Colors), c.colors) << c.lines;
}

TEST(InkSection, InkTypesComeFromTheFileOrAreTheBuiltInOnes) {
  EXPECT_EQ(TableOf(Parsed("NumOfInkType=0\n")->InkTypes), kDefaultInkTypes);
  EXPECT_EQ(TableOf(Parsed("NumOfInkType=2\nInkType002Code=5\nInkType002Name=N\n")->InkTypes),
            (Table{{5, "N"}}));
}

TEST(InkSection, EnormousCountsGiveTheEntriesThatAreThere) {
  std::string filler;
  for (int i = 0; i < 5000; ++i)
    filler += "FillerThatMakesTheListOfKeysLong" + std::to_string(i) + "=\n";
  const auto config = Parsed(
      filler +
      "NumOfColor=2147483647\nColor2000000000Code=1\nColor2000000000Name=Far\n"
      "Color000Code=7\nColor000Name=Zero\n"
      "Color0000000003Code=2\nColor0000000003Name=Padded\ncolor010CODE=3\nCOLOR010name=Near\n"
      "Color2147483647Code=4\nColor2147483647Name=Last\nColor2147483648Code=5\n"
      "Color2147483648Name=Beyond\nColorWheelCode=6\n"
      "NumOfInkType=65\nInkType065Code=8\nInkType065Name=In\nInkType066Code=9\n"
      "InkType066Name=Out\nPrinterInkSlotNum=2147483647\nColorCodeInkSlot1=1\n"
      "InkTypeCodeInkSlot1=113\n");
  EXPECT_EQ(TableOf(config->Colors), (Table{{3, "Near"}, {1, "Far"}, {4, "Last"}}));
  EXPECT_EQ(TableOf(config->InkTypes), (Table{{8, "In"}}));
  EXPECT_EQ(config->InkSlotNum, 8) << "slot 2 is missing, so the built-in slots stand in";
}

TEST(InkSection, AnIncompleteSlotBringsTheBuiltInSlotsAndCategories) {
  const std::string four = SlotLines({{1, 113}, {2, 113}, {3, 113}, {4, 113}});
  const auto without = [&](const std::string& key) {
    const std::size_t line = four.find(key);
    return std::string(four).erase(line, four.find('\n', line) - line);
  };
  const std::string cases[] = {
      "",
      "PrinterInkSlotNum=0\n",
      "PrinterInkSlotNum=-1\n",
      without("InkTypeCodeInkSlot3"),
      without("ColorCodeInkSlot4"),
      without("PrinterInkSlotNum"),
      "PrinterInkSlotNum=1\nColorCodeInkSlot001=1\nInkTypeCodeInkSlot1=1\n"};
  for (const std::string& lines : cases) {
    const auto config = Parsed(lines);
    EXPECT_EQ(config->InkSlotNum, 8) << lines;
    EXPECT_EQ(config->InkSlots.size(), 8u) << lines;
    EXPECT_EQ(CategoriesOf(*config), kDefaultCategories) << lines;
  }
}

TEST(InkCategories, FileSlotsAreGroupedByInk) {
  const std::string rose = "NumOfColor=1\nColor001Code=9\nColor001Name=Rose\n";
  const struct {
    const char* what;
    std::string lines;
    Categories categories;
  } cases[] = {
      {"first appearance orders the categories, groups the model ink",
       SlotLines({{1, 113}, {2, 113}, {56, 114}, {1, 113}}),
       {{"KP-300 Cyan", {1, 4}},
        {"KP-300 Magenta", {2}},
        {"LX-300 Support", {3}},
        {"[Total] Model Ink", {1, 4, 2}},
        {"[Total] All Ink", {1, 2, 3, 4}}}},
      {"one colour of two ink types; two support inks",
       SlotLines({{1, 113}, {1, 134}, {56, 114}, {56, 113}, {56, 114}}),
       {{"KP-300 Cyan", {1}},
        {"KP-310 Cyan", {2}},
        {"LX-300 Support", {3, 5}},
        {"KP-300 Support", {4}},
        {"[Total] Model Ink", {1, 2}},
        {"[Total] All Ink", {1, 2, 3, 4, 5}}}},
      {"unknown codes share a nameless group that is model ink but not part of all ink",
       SlotLines({{99, 113}, {1, 113}, {1, 99}}),
       {{"", {1, 3}},
        {"KP-300 Cyan", {2}},
        {"[Total] Model Ink", {1, 3, 2}},
        {"[Total] All Ink", {2}}}},
      {"ink types that agree in three digits share a group under the first one's name",
       "NumOfInkType=2\nInkType001Code=1113\nInkType001Name=Big\nInkType002Code=113\n"
       "InkType002Name=Small\n" +
           SlotLines({{1, 1113}, {1, 113}}),
       {{"Big Cyan", {1, 2}}, {"[Total] Model Ink", {1, 2}}, {"[Total] All Ink", {1, 2}}}},
      {"colours that agree in three digits do not, and but one is support",
       "NumOfColor=2\nColor001Code=1056\nColor001Name=Big\nColor002Code=56\nColor002Name=Small\n" +
           SlotLines({{1056, 113}, {56, 113}}),
       {{"KP-300 Big", {1}},
        {"KP-300 Small", {2}},
        {"[Total] Model Ink", {1}},
        {"[Total] All Ink", {1, 2}}}},
      {"the first of two equal codes names the ink",
       "NumOfColor=2\nColor001Code=7\nColor001Name=First\nColor002Code=7\nColor002Name=Second\n" +
           SlotLines({{7, 113}}),
       {{"KP-300 First", {1}}, {"[Total] Model Ink", {1}}, {"[Total] All Ink", {1}}}},
      {"negative and large codes are codes like others",
       "NumOfColor=2\nColor001Code=-5\nColor001Name=Minus\nColor002Code=2147483647\n"
       "Color002Name=Max\n" +
           SlotLines({{-5, 113}, {2147483647, 113}, {-5, 113}}),
       {{"KP-300 Minus", {1, 3}},
        {"KP-300 Max", {2}},
        {"[Total] Model Ink", {1, 3, 2}},
        {"[Total] All Ink", {1, 2, 3}}}},
      {"negative ink types part the inks as far as the numbers of their ids do",
       "NumOfInkType=4\nInkType001Code=-12\nInkType001Name=A\nInkType002Code=-13\n"
       "InkType002Name=B\nInkType003Code=-5\nInkType003Name=C\nInkType004Code=-6\n"
       "InkType004Name=D\n" +
           SlotLines({{1, -12}, {1, -13}, {1, -5}, {1, -6}}),
       {{"A Cyan", {1}},
        {"B Cyan", {2}},
        {"C Cyan", {3, 4}},
        {"[Total] Model Ink", {1, 2, 3, 4}},
        {"[Total] All Ink", {1, 2, 3, 4}}}},
      {"built-in slots over a table without their colours",
       rose,
       {{"Support", {}},
        {"Clear", {}},
        {"White", {}},
        {"Color", {}},
        {"[Total] Model Ink", {}},
        {"[Total] All Ink", {}}}},
  };
  for (const auto& c : cases)
    EXPECT_EQ(CategoriesOf(*Parsed(c.lines)), c.categories) << c.what;
}

TEST(InkCategories, EverySlotWithAnInkOfItsOwnHasItsCategory) {
  constexpr std::int32_t kSlots = 20000;
  InkModel inks;
  inks.InkTypes.Add(113, "T");
  for (std::int32_t i = 1; i <= kSlots; ++i) {
    inks.Colors.Add(1000 * i, "C");
    inks.AddInkSlot(static_cast<std::uint32_t>(i), static_cast<std::uint32_t>(1000 * i), 113);
  }
  EXPECT_TRUE(inks.BuildInkCategories());
  EXPECT_EQ(inks.InkCategories.size(), kSlots + 2u);
  EXPECT_EQ(inks.InkCategories.back()->slots.size(), std::size_t{kSlots});
}

TEST(InkCategories, ACategoryTakesNoNullSlot) {
  InkCategoryImpl category("empty");
  EXPECT_FALSE(category.AddSlot(nullptr));
  std::int32_t* numbers = nullptr;
  std::int32_t count = -1;
  EXPECT_FALSE(category.ListSlotNumbers(&numbers, &count));
  EXPECT_EQ(numbers, nullptr);
  EXPECT_EQ(count, -1);
}

TEST(InkModel, ASecondParseReplacesAllOfTheInks) {
  const std::string definitions[] = {
      "", SlotLines({{1, 113}, {2, 113}}),
      "NumOfColor=1\nColor001Code=9\nColor001Name=Rose\nNumOfInkType=1\nInkType001Code=5\n"
      "InkType001Name=N\n" +
          SlotLines({{9, 5}})};
  const TestFolder folder;
  PrinterConfig config;
  for (const int i : {1, 2, 0, 0, 2, 1, 0}) {
    ASSERT_TRUE(config.Parse(folder.Write("a.ini", Definition(definitions[i]))));
    const auto fresh = Parsed(definitions[i]);
    EXPECT_EQ(TableOf(config.Colors), TableOf(fresh->Colors));
    EXPECT_EQ(TableOf(config.InkTypes), TableOf(fresh->InkTypes));
    EXPECT_EQ(config.InkSlotNum, fresh->InkSlotNum);
    EXPECT_EQ(config.InkSlots.size(), fresh->InkSlots.size());
    EXPECT_EQ(CategoriesOf(config), CategoriesOf(*fresh));
  }
}

TEST(InkSlot, TheLibraryAsksForCodesAndNumbers) {
  const auto config = Parsed(
      "NumOfColor=2\nColor001Code=-5\nColor001Name=Minus\nColor002Code=1024\nColor002Name=Big\n" +
      SlotLines({{-5, 113}, {1024, 113}, {99, 113}}));
  const struct {
    std::uint32_t color, inkType, idNumber;
    const char* id;
    const char* name;
  } cases[] = {
      {4294967291u, 113, 1130, "1130-5", "KP-300 Minus"},
      {1024, 113, 113024, "113024", "KP-300 Big"},
      {0, 0, 0, "000000", ""},
  };
  for (std::size_t i = 0; i < std::size(cases); ++i) {
    const NumberedInkSlot& slot = *config->InkSlots[i];
    EXPECT_EQ(slot.GetSlotNumber(), i + 1);
    EXPECT_EQ(slot.ColorCode(), cases[i].color);
    EXPECT_EQ(slot.InkTypeCode(), cases[i].inkType);
    std::uint32_t idNumber = 77;
    EXPECT_TRUE(slot.GetInkIdNumber(&idNumber));
    EXPECT_EQ(idNumber, cases[i].idNumber);
    EXPECT_EQ(slot.InkIdString(), cases[i].id);
    EXPECT_EQ(slot.InkNameString(), cases[i].name);
  }
}

}  // namespace
}  // namespace tavrin
