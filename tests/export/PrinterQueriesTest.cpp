#include <functional>
#include <limits>

#include "export/ExportTest.h"

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

void ExpectScalars(const std::vector<double>& expected) {
  ASSERT_EQ(expected.size(), std::size(kScalarQueries));
  for (std::size_t i = 0; i < expected.size(); ++i) {
    double answer = -1.0;
    EXPECT_TRUE(kScalarQueries[i].ask(&answer)) << kScalarQueries[i].name;
    EXPECT_EQ(answer, expected[i]) << kScalarQueries[i].name;
  }
}

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

TEST_F(PrinterQueries, ScalarsAnswerTheirKeys) {
  ASSERT_TRUE(InitializeDefinition(""));
  ExpectScalars({5, 0, 100, 3000, 1, 0, 0, 53.7, 2, 0, 0, 1, 0});
  ASSERT_TRUE(InitializeDefinition(
      "PrintMargin=6\nSupportThickness=0.2\nDetachLayerSize=1\nAntiAliasing=0\nReverse=1\n"
      "White_White=0\nHeadBandSize=40.5\nDefaultMode=9\nCuttingMarginSetting=3\n"
      "SupportSizeSetting=-2\nAutoCleaningEnabled=0\nNCUEnabled=1\n"));
  ExpectScalars({6000, 0, 200, 1000, 0, 1, 1, 40.5, 9, 3, 4294967294.0, 0, 1});
}

TEST_F(PrinterQueries, AreaIsTruncatedIn64BitsModulo32) {
  const struct {
    const char* size;
    std::uint32_t x, y, z;
  } cases[] = {
      {"508,508,508", 508000, 508000, 508000},
      {"0.0019,-1,1.005", 1, 4294966296u, 1004},
      {"4294967.297,1e300,nan", 1, 0, 0},
  };
  for (const auto& c : cases) {
    ASSERT_TRUE(InitializeDefinition(std::string("PrinterSize=") + c.size));
    std::uint32_t x = 7, y = 7, z = 7;
    EXPECT_TRUE(TavrinGetAreaSize(&x, &y, &z));
    EXPECT_EQ(x, c.x) << c.size;
    EXPECT_EQ(y, c.y) << c.size;
    EXPECT_EQ(z, c.z) << c.size;
  }
}

TEST_F(PrinterQueries, ModesAnswerByIndex) {
  ASSERT_TRUE(InitializeDefinition(
      "PrinterSize=100,100,10.05\nMode=5,2\nLimitationMode=2\n"
      "Mode5SliceSize=0.032\nMode5ColorThickness=0.5\nMode5=600,2\n"
      "Mode2SliceSize=0.0004\nMode2ColorThickness=0.5\nMode2=1200,4\nMode2LimitedContinuous=3\n"));
  std::uint32_t count = 0;
  EXPECT_TRUE(TavrinGetModeCount(&count));
  EXPECT_EQ(count, 2u);

  std::int32_t mode[6] = {};
  EXPECT_TRUE(TavrinGetModeConfig(0, mode));
  EXPECT_EQ(std::vector<std::int32_t>(mode, mode + 6),
            (std::vector<std::int32_t>{5, 32, 2, 600, 314, -1}));
  EXPECT_TRUE(TavrinGetModeConfig(1, mode));
  EXPECT_EQ(std::vector<std::int32_t>(mode, mode + 6),
            (std::vector<std::int32_t>{2, 0, 4, 1200, std::numeric_limits<std::int32_t>::min(), 3}))
      << "no slice height, no finite number of layers";

  bool limited = true;
  EXPECT_TRUE(TavrinGetWarpWarning(0, &limited));
  EXPECT_FALSE(limited);
  EXPECT_TRUE(TavrinGetWarpWarning(1, &limited));
  EXPECT_TRUE(limited);

  SetLastErrorAside();
  for (const std::int32_t index : {-1, 2, std::numeric_limits<std::int32_t>::min(),
                                   std::numeric_limits<std::int32_t>::max()}) {
    EXPECT_FALSE(TavrinGetModeConfig(index, mode)) << index;
    EXPECT_FALSE(TavrinGetWarpWarning(index, &limited)) << index;
  }
  EXPECT_EQ(LastError(), ErrorInvalidArgument) << "a missing mode records nothing";
}

TEST_F(PrinterQueries, LayersCountInTheHeightAs32Bits) {
  const struct {
    const char* height;
    const char* slice;
    std::int32_t layers;
  } cases[] = {
      {"0.99", "0.1", 9},         {"1", "-0.3", -3},
      {"3000000", "1", -2147483},  // the height is beyond 32 bits
      {"nan", "2147483", -1},     {"0", "0", std::numeric_limits<std::int32_t>::min()},
  };
  for (const auto& c : cases) {
    ASSERT_TRUE(InitializeDefinition(
        std::string("PrinterSize=1,1,") + c.height +
        "\nMode=1\nMode1=1,1\nMode1ColorThickness=1\nMode1SliceSize=" + c.slice + "\n"));
    std::int32_t mode[6] = {};
    ASSERT_TRUE(TavrinGetModeConfig(0, mode));
    EXPECT_EQ(mode[4], c.layers) << c.height << '/' << c.slice;
  }
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

TEST_F(PrinterQueries, SideSupportGoesOutModulo32) {
  std::uint32_t thickness = 7;
  ASSERT_TRUE(InitializeDefinition("SupportExtend=-1\nSupportExtendAngle=0\n"));
  EXPECT_TRUE(TavrinGetSideSupportThickness(1, &thickness));
  EXPECT_EQ(thickness, 4294966296u);
}

}  // namespace
}  // namespace tavrin::test
