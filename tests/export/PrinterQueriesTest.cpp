#include <functional>
#include <limits>

#include <gmock/gmock.h>

#include "export/ExportTest.h"
#include "support/Answers.h"
#include "unit/TestText.h"

namespace tavrin::test {
namespace {

class PrinterQueries : public ExportTest {};

/// Every query that writes one number or switch, as a number.
struct ScalarQuery {
  const char* name;
  std::function<bool(double*)> ask;
};

template <typename Value>
ScalarQuery Scalar(const char* name, bool (*query)(Value*)) {
  return {name, [query](double* answer) {
            Value value{};
            const bool succeeded = query(&value);
            *answer = static_cast<double>(value);
            return succeeded;
          }};
}

const ScalarQuery kScalarQueries[] = {
    Scalar("margin", TavrinGetAreaMarginSize),
    Scalar("mode count", TavrinGetModeCount),
    Scalar("top support", TavrinGetTopSupportThickness),
    Scalar("detach layer", TavrinGetDetachLayerHeight),
    Scalar("smoothing", TavrinGetSmoothing),
    Scalar("bidirectional", TavrinGetFeedBiDirection),
    Scalar("wrap reduction", TavrinGetWrapReduction),
    Scalar("head band", TavrinGetHeadBandSize),
    Scalar("default mode", TavrinGetDefaultPrintMode),
    Scalar("chipping allowance", TavrinGetChippingAllowance),
    Scalar("support size", TavrinGetSupportSize),
    Scalar("auto cleaning", TavrinGetAutoCleaning),
    Scalar("nozzle check", TavrinGetCheckNozzleWhilePrinting),
};

TEST_F(PrinterQueries, WithoutADefinitionEachFailsAndWritesNothing) {
  const auto expectFailure = [](const char* name, bool succeeded) {
    EXPECT_FALSE(succeeded) << name;
    EXPECT_EQ(LastError(), ErrorNotInitialized) << name;
    SetLastErrorAside();
  };
  SetLastErrorAside();
  for (const ScalarQuery& query : kScalarQueries) {
    double answer = 0.0;
    expectFailure(query.name, query.ask(&answer));
  }
  std::uint32_t values[3] = {7, 7, 7};
  expectFailure("area", TavrinGetAreaSize(&values[0], &values[1], &values[2]));
  expectFailure("side support", TavrinGetSideSupportThickness(1, &values[0]));
  for (const std::uint32_t value : values)
    EXPECT_EQ(value, 7u);
  std::int32_t mode[6] = {7, 7, 7, 7, 7, 7};
  expectFailure("mode", TavrinGetModeConfig(0, mode));
  EXPECT_EQ(mode[0], 7);
  bool limited = true;
  expectFailure("warp warning", TavrinGetWarpWarning(0, &limited));
  EXPECT_TRUE(limited);
  char info[384] = {'x'};
  expectFailure("info", TavrinGetInfo(info));
  EXPECT_EQ(info[0], 'x');
  expectFailure("info, null", TavrinGetInfo(nullptr));

  std::uint32_t count = 7;
  expectFailure("mode count", TavrinGetModeCount(&count));
  EXPECT_EQ(count, 0u) << "the one output that is written without a definition";
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
  EXPECT_EQ(cases, 79);
}

TEST_F(PrinterQueries, AMissingModeRecordsNothing) {
  ASSERT_TRUE(
      InitializeDefinition("Mode=5\nMode5=600,2\nMode5SliceSize=0.032\nMode5ColorThickness=0.5\n"));
  SetLastErrorAside();
  for (const std::int32_t index : {-1, 1, std::numeric_limits<std::int32_t>::min(),
                                   std::numeric_limits<std::int32_t>::max()}) {
    std::int32_t mode[6] = {};
    bool limited = false;
    EXPECT_FALSE(TavrinGetModeConfig(index, mode)) << index;
    EXPECT_FALSE(TavrinGetWarpWarning(index, &limited)) << index;
  }
  EXPECT_EQ(LastError(), ErrorInvalidArgument);
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
