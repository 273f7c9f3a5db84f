#include <regex>
#include <set>
#include <sstream>

#include <gtest/gtest.h>

#include "TavrinLib.h"
#include "check/Reading.h"
#include "definition/IniSnapshot.h"
#include "definition/PrinterConfig.h"
#include "definition/TextConversion.h"
#include "keys/KeyFacts.h"
#include "keys/KeyText.h"
#include "keys/KnownKeys.h"
#include "keys/Template.h"
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

/// The keys that the first group of line finds in the text's lines.
Keys KeysIn(const std::string& content, const char* line) {
  const std::regex pattern(line);
  std::istringstream text(content);
  Keys keys;
  std::smatch match;
  for (std::string each; std::getline(text, each);) {
    if (std::regex_search(each, match, pattern)) keys.insert(Folded(match[1]));
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
  EXPECT_EQ(KeysIn(ReadWhole(kDocument), "^\\| `(\\w+)` \\|"), example.asked);
  EXPECT_EQ(KeysIn(tool::MakeTemplate(), "^;?(\\w+)="), example.asked);
  EXPECT_EQ(KeysIn(ReadWhole(kExample), "^(\\w+)="), example.asked);
}

/// A key's row of the document.
std::string RowOf(const tool::KeyFacts& facts) {
  const tool::KeyText text(facts);
  const tool::KnownKey key = tool::KnownKeyOfShape(facts.shape);
  const std::string usual = text.usual.empty() ? "" : "; usually " + text.usual;
  const std::string without = std::regex_replace(text.without, std::regex("#"), "N");
  return "| `" + Folded(key.WithNumber(1)) + "` | " + text.values + usual + " | " + without +
         " | " + facts.meaning + " | `" + key.WithNumber(1) + '=' + facts.example + "` |\n";
}

TEST(DefinitionKeys, FormsAreWhatTheReaderAsksFor) {
  using Form = tool::KeyFacts::Form;
  using Kind = tool::WatchedRead::Kind;
  const std::string example = ReadWhole(kExample);
  const tool::Reading reading({example.begin(), example.end()});
  for (const tool::WatchedRead& read : reading.reads) {
    std::int32_t number = 0;
    const Form form = tool::FactsOf(reading.KnownKeyOf(read.key, &number)->Shape()).form;
    const bool isInteger = form == Form::Integer || form == Form::Switch;
    const bool isNumber = form == Form::Length || form == Form::Number;
    // What is read as a text may be taken for a number afterwards.
    if (read.kind == Kind::Text) {
      EXPECT_TRUE(form != Form::Length && form != Form::Switch) << read.key;
    } else {
      EXPECT_TRUE(read.kind == Kind::Integer ? isInteger : isNumber) << read.key;
    }
  }
}

TEST(DefinitionKeys, DocumentHasTheTable) {
  std::string rows;
  for (const tool::KeyFacts& facts : tool::ListKeyFacts())
    rows += RowOf(facts);
  const std::string table = "|---|---|---|---|---|\n" + rows + '\n';
  EXPECT_TRUE(ReadWhole(kDocument).find(table) != std::string::npos) << rows;
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
  EXPECT_EQ(AnswersTo(tool::MakeTemplate()), AnswersTo(Definition("")));
}

TEST(DefinitionTemplate, IsWholeWithEveryKeyTakenIn) {
  const TestFolder folder;
  const std::string all =
      std::regex_replace(tool::MakeTemplate(), std::regex("\n;(?=\\w+=)"), "\n");
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
