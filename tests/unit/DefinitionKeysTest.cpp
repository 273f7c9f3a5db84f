#include <regex>
#include <set>
#include <sstream>

#include <gtest/gtest.h>

#include "TavrinLib.h"
#include "definition/IniSnapshot.h"
#include "definition/PrinterConfig.h"
#include "definition/TextConversion.h"
#include "keys/KnownKeys.h"
#include "support/Answers.h"
#include "support/TestFiles.h"

namespace tavrin {
namespace {

using test::Definition;
using test::ReadWhole;
using test::TestFolder;
using Keys = std::set<std::string>;

const std::string kProject = TAVRIN_TEST_DATA_DIR "/../../";
const std::string kExample = kProject + "examples/full-colour.ini";
const std::string kTemplate = kProject + "tools/keys/template.ini";
const std::string kDocument = kProject + "docs/definition-file.md";

/// A key's name with N for its number, NNN for one of three digits.
std::string Folded(const std::string& key) {
  static const std::regex threeDigits("[0-9]{3}");
  static const std::regex number("[0-9]+");
  return std::regex_replace(std::regex_replace(key, threeDigits, "NNN"), number, "N");
}

/// Notes which keys the reading code asks for.
class WatchedFile : public IniSnapshot {
 public:
  explicit WatchedFile(const std::string& file) : IniSnapshot(WideCopy(file)) {}

  using IniSnapshot::ReadString;
  bool ReadString(const wchar_t* section, const wchar_t* key, std::wstring* value) override {
    asked.insert(Folded(NarrowCopy(key)));
    return IniSnapshot::ReadString(section, key, value);
  }

  Keys asked;
};

/// The keys that the first group of line finds in the file's lines.
Keys KeysIn(const std::string& path, const char* line) {
  const std::regex pattern(line);
  std::istringstream text(ReadWhole(path));
  Keys keys;
  std::smatch match;
  for (std::string content; std::getline(text, content);) {
    if (std::regex_search(content, match, pattern)) keys.insert(Folded(match[1]));
  }
  return keys;
}

/// The keys that check knows.
Keys KnownKeys() {
  Keys keys;
  for (const tool::KnownKey& key : tool::ListKnownKeys())
    keys.insert(Folded(key.WithNumber(1)));
  return keys;
}

TEST(DefinitionKeys, ReaderCheckDocumentTemplateAndExampleHaveTheSame) {
  WatchedFile example(kExample);
  PrinterConfig config;
  ASSERT_TRUE(config.ParseOpened(example));
  EXPECT_EQ(KnownKeys(), example.asked);
  EXPECT_EQ(KeysIn(kDocument, "^\\| `(\\w+)` \\|"), example.asked);
  EXPECT_EQ(KeysIn(kTemplate, "^;?(\\w+)="), example.asked);
  EXPECT_EQ(KeysIn(kExample, "^(\\w+)="), example.asked);
}

void Describe(std::ostream& out, const char* title, const InkTable& table) {
  for (std::size_t i = 0; i < table.size(); ++i)
    out << title << table[i].code << ' ' << table[i].name << '\n';
}

std::string DescribeInks(const PrinterConfig& config) {
  std::ostringstream out;
  Describe(out, "colour ", config.Colors);
  Describe(out, "ink type ", config.InkTypes);
  for (const auto& slot : config.InkSlots) {
    out << "slot " << slot->GetSlotNumber() << ' ' << slot->ColorCode() << ' '
        << slot->InkTypeCode() << '\n';
  }
  out << config.InkSlotNum << " slots\n";
  return out.str();
}

/// What the exports answer when a definition is loaded.
std::string AnswersTo(const std::string& content) {
  const TestFolder folder;
  EXPECT_TRUE(TavrinInitialize(folder.WriteEnciphered("printer.dat", content).c_str()));
  const std::string answers = test::AskEverything();
  TavrinFinalize();
  return answers;
}

TEST(DefinitionTemplate, LoadsToTheBuiltInDefaults) {
  EXPECT_EQ(AnswersTo(ReadWhole(kTemplate)), AnswersTo(Definition("")));
}

TEST(DefinitionTemplate, IsWholeWithEveryKeyTakenIn) {
  const TestFolder folder;
  const std::string all =
      std::regex_replace(ReadWhole(kTemplate), std::regex("\n;(?=\\w+=)"), "\n");
  PrinterConfig config;
  ASSERT_TRUE(config.Parse(folder.Write("all.ini", all)));
  EXPECT_EQ(config.Modes.size(), 2u);
  EXPECT_EQ(config.SupportSize, 0);
  EXPECT_EQ(config.IPAddress, "192.0.2.1");
  PrinterConfig builtIn;
  ASSERT_TRUE(builtIn.Parse(folder.Write("printer.ini", Definition(""))));
  EXPECT_EQ(DescribeInks(config), DescribeInks(builtIn));
  EXPECT_NE(config.InkCategories.size(), builtIn.InkCategories.size());
}

}  // namespace
}  // namespace tavrin
