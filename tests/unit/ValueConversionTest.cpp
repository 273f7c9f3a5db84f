#include <cstring>
#include <limits>

#include <gtest/gtest.h>

#include "definition/IntegerConversion.h"
#include "definition/PrinterKeys.h"
#include "definition/TextConversion.h"
#include "definition/ValueConversion.h"

namespace tavrin {
namespace {

constexpr std::int32_t kInt32Min = std::numeric_limits<std::int32_t>::min();
constexpr std::int32_t kUntouched = -77;

std::wstring Widen(const std::string& text) {
  return std::wstring(text.begin(), text.end());
}

TEST(ValueConversion, IntegersConvertUpToTheFirstOtherCharacter) {
  const struct {
    const char* text;
    bool converts;
    std::int32_t value;
  } cases[] = {
      {"42", true, 42},
      {" \t42", true, 42},
      {"+7", true, 7},
      {"-7 mm", true, -7},
      {"42.9", true, 42},
      {"12abc", true, 12},
      {"010", true, 10},
      {"0x10", true, 0},
      {"2147483647", true, 2147483647},
      {"-2147483648", true, kInt32Min},
      {"2147483648", false, kUntouched},
      {"-2147483649", false, kUntouched},
      {"99999999999", false, kUntouched},
      {"99999999999999999999999999", false, kUntouched},
      {"abc", false, kUntouched},
      {"-", false, kUntouched},
      {"+-7", false, kUntouched},
      {"++7", false, kUntouched},
      {" ", false, kUntouched},
      {"", false, kUntouched},
  };
  for (const auto& c : cases) {
    std::int32_t narrow = kUntouched;
    std::int32_t wide = kUntouched;
    EXPECT_EQ(ParseInt(c.text, &narrow), c.converts) << c.text;
    EXPECT_EQ(ParseInt(Widen(c.text), &wide), c.converts) << c.text;
    EXPECT_EQ(narrow, c.value) << c.text;
    EXPECT_EQ(wide, c.value) << c.text;
  }
}

TEST(ValueConversion, DoublesConvertUpToTheFirstOtherCharacter) {
  const struct {
    const char* text;
    bool converts;
    double value;
  } cases[] = {
      {"1.5", true, 1.5},       {"1.5mm", true, 1.5}, {" -0.25", true, -0.25},
      {"1e3", true, 1000.0},    {".5", true, 0.5},    {"1,5", true, 1.0},
      {"1e999", false, -77.0},  {"mm", false, -77.0}, {".", false, -77.0},
      {"-1e999", false, -77.0}, {"", false, -77.0},   {"1e-400", false, -77.0},
  };
  for (const auto& c : cases) {
    double narrow = -77.0;
    double wide = -77.0;
    EXPECT_EQ(ParseDouble(c.text, &narrow), c.converts) << c.text;
    EXPECT_EQ(ParseDouble(Widen(c.text), &wide), c.converts) << c.text;
    EXPECT_EQ(narrow, c.value) << c.text;
    EXPECT_EQ(wide, c.value) << c.text;
  }
}

// What the C runtimes differ in: their white space, the edges of a double's range in wide text, and
// the bits of a NaN.
TEST(ValueConversion, NumbersAreTheSameOnEveryPlatform) {
  for (const wchar_t* text : {L"\u00A042", L" \u2007\u202F42", L"\u0085\u300042\u2603"}) {
    std::int32_t integer = kUntouched;
    double number = -77.0;
    EXPECT_TRUE(ParseInt(text, &integer) && ParseDouble(text, &number));
    EXPECT_EQ(integer, 42);
    EXPECT_EQ(number, 42.0);
  }
  std::int32_t narrow = kUntouched;
  EXPECT_TRUE(ParseField(NarrowCopy(L"\u00A042"), &narrow));
  EXPECT_EQ(narrow, 42);
  for (const wchar_t* text : {L"\uFF14\uFF12", L"\u0664\u0662"})
    EXPECT_FALSE(ParseInt(text, &narrow)) << "digits of other scripts";
  EXPECT_FALSE(ParseInt(std::wstring(L"-\u00A042"), &narrow));

  const struct {
    const char* text;
    double value;  // 0: out of range
  } edges[] = {
      {"1.7976931348623158e308", std::numeric_limits<double>::max()},
      {"1.7976931348623159e308", 0.0},
      {"0x1p-1074", std::numeric_limits<double>::denorm_min()},
      {"0x65.2dp-1069", 3238 * std::numeric_limits<double>::denorm_min()},
      {"1e-310", 1e-310},
      {"0x1p-1075", 0.0},
      {"1e-400", 0.0},
  };
  for (const auto& edge : edges) {
    double number = 0.0;
    EXPECT_EQ(ParseDouble(edge.text, &number), edge.value != 0.0) << edge.text;
    EXPECT_EQ(number, edge.value) << edge.text;
  }
  const double expected = std::numeric_limits<double>::quiet_NaN();
  for (const char* text : {"nan", "-nan", "nan(1)"}) {
    double number = 0.0;
    EXPECT_TRUE(ParseDouble(text, &number));
    EXPECT_EQ(std::memcmp(&number, &expected, sizeof number), 0) << text;
  }
}

TEST(ValueConversion, SplitKeepsEmptyFieldsButNoneAfterTheLastComma) {
  const struct {
    const char* text;
    std::vector<std::string> fields;
  } cases[] = {
      {"a,,b", {"a", "", "b"}}, {"a,b,", {"a", "b"}}, {",", {""}},
      {"1, 2", {"1", " 2"}},    {"a", {"a"}},         {"", {}},
  };
  for (const auto& c : cases) {
    std::vector<std::string> fields = {"left from before"};
    EXPECT_EQ(Split(c.text, &fields), !c.fields.empty()) << c.text;
    EXPECT_EQ(fields, c.fields) << c.text;
  }
}

TEST(IntegerConversion, EveryDoubleHasADefinedInteger) {
  constexpr double kNan = std::numeric_limits<double>::quiet_NaN();
  constexpr double kInfinity = std::numeric_limits<double>::infinity();
  const struct {
    double value;
    std::int32_t to32;
    std::uint32_t toUnsigned;
  } cases[] = {
      {1.9, 1, 1},
      {-1.9, -1, 0xFFFFFFFFu},
      {2147483647.9, 2147483647, 2147483647u},
      {2147483648.0, kInt32Min, 2147483648u},
      {-2147483648.9, kInt32Min, 2147483648u},
      {4294967297.5, kInt32Min, 1},
      {9.3e18, kInt32Min, 0},
      {-9.3e18, kInt32Min, 0},
      {kNan, kInt32Min, 0},
      {kInfinity, kInt32Min, 0},
      {-kInfinity, kInt32Min, 0},
  };
  for (const auto& c : cases) {
    EXPECT_EQ(TruncateToInt32(c.value), c.to32) << c.value;
    EXPECT_EQ(TruncateToUint32(c.value), c.toUnsigned) << c.value;
  }
  EXPECT_EQ(WrappingAdd(2147483647, 1), kInt32Min);
  EXPECT_EQ(WrappingAdd(kInt32Min, -1), 2147483647);
}

}  // namespace
}  // namespace tavrin
