#include <regex>
#include <set>
#include <sstream>

#include <gmock/gmock.h>

#include "export/ExportTest.h"
#include "support/Answers.h"
#include "unit/TestText.h"

namespace tavrin::test {
namespace {

class PrinterQueries : public ExportTest {};

TEST_F(PrinterQueries, WithoutADefinitionEachFailsAndWritesNothing) {
  // The mode count is the one output that is written.
  const std::regex untouched(
      "(ModeCount false 0|(?!ModeCount )\\w+( -?\\d+| null)? false( 1| 7| 2880154539| (3f)+| "
      "untouched)* ?) "
      "error 2");
  std::istringstream answers(AskEverything());
  std::set<std::string> asked;
  for (std::string line; std::getline(answers, line);) {
    EXPECT_TRUE(std::regex_match(line, untouched)) << line;
    asked.insert(line.substr(0, line.find(' ')));
  }
  EXPECT_EQ(asked.size(), 22u);
}

TEST_F(PrinterQueries, AnswerAsTheTableOfDefinitionsSays) {
  int cases = 0;
  for (const auto& row : Rows(ReadWhole(TAVRIN_TEST_DATA_DIR "/definition-cases.tsv"))) {
    SCOPED_TRACE(row[0]);
    ++cases;
    ASSERT_TRUE(InitializeDefinition(Unescape(row[0])));
    const std::string answers = "\n" + AskEverything();
    for (std::size_t i = 1; i < row.size(); ++i)
      EXPECT_THAT(answers, testing::HasSubstr("\n" + row[i] + "\n"));
  }
  EXPECT_EQ(cases, 81);
}

TEST_F(PrinterQueries, InfoHoldsThreeFieldsOf128Bytes) {
  const std::string full(128, 'v');
  ASSERT_TRUE(Initialize("[printer]\nModelName=M\nVersion=" + full + "\nIPAddress=10.0.0.1\n"));
  char info[385];
  std::fill(std::begin(info), std::end(info), '#');
  EXPECT_TRUE(TavrinGetInfo(info));
  EXPECT_EQ(std::string(info, 128), "M" + std::string(127, '\0'));
  EXPECT_EQ(std::string(info + 128, 128), full) << "no room for a NUL";
  EXPECT_EQ(std::string(info + 256, 128), "10.0.0.1" + std::string(120, '\0'));
  EXPECT_EQ(info[384], '#');
}

TEST_F(PrinterQueries, InfoRefusesLongTextsAndKeepsTheFieldsBefore) {
  const std::string tooLong(129, 'x');
  const struct {
    std::string lines;
    int fieldsWritten;
  } cases[] = {
      {"ModelName=" + tooLong + "\nVersion=1\n", 0},
      {"ModelName=M\nVersion=" + tooLong + "\n", 1},
      {"ModelName=M\nVersion=1\nIPAddress=" + tooLong + "\n", 2},
  };
  for (const auto& c : cases) {
    ASSERT_TRUE(Initialize("[printer]\n" + c.lines));
    SetLastErrorAside();
    char info[384];
    std::fill(std::begin(info), std::end(info), '#');
    EXPECT_FALSE(TavrinGetInfo(info)) << c.lines;
    EXPECT_EQ(LastError(), ErrorFailed) << c.lines;
    for (int field = 0; field < 3; ++field) {
      EXPECT_EQ(info[128 * field] != '#', field < c.fieldsWritten) << c.lines << field;
    }
  }
  ASSERT_TRUE(InitializeDefinition(""));
  SetLastErrorAside();
  EXPECT_FALSE(TavrinGetInfo(nullptr));
  EXPECT_EQ(LastError(), ErrorFailed);
}

}  // namespace
}  // namespace tavrin::test
