// The input is a text or a number's bytes: put through every conversion of values, each held
// against what else is known of its answer.
#include <algorithm>
#include <cmath>
#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <cstring>
#include <limits>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "definition/IntegerConversion.h"
#include "definition/TemporaryPath.h"
#include "definition/TextConversion.h"
#include "definition/ValueConversion.h"
#include "fuzz/Require.h"
#include "util/TextUtilities.h"

namespace tavrin {
namespace {

using fuzz::Require;

bool IsAscii(const std::string& text) {
  return std::all_of(text.begin(), text.end(), [](char c) { return c > 0; });
}

/// What ParseInt documents, digit by digit.
bool ParseDigits(const std::string& text, std::int32_t* value) {
  std::size_t i = std::min(text.find_first_not_of(" \t\n\v\f\r"), text.size());
  const bool isNegative = i < text.size() && text[i] == '-';
  if (i < text.size() && (text[i] == '-' || text[i] == '+')) ++i;
  std::int64_t number = 0;
  const std::size_t begin = i;
  for (; i < text.size() && text[i] >= '0' && text[i] <= '9'; ++i)
    number = std::min<std::int64_t>(10 * number + (text[i] - '0'), std::int64_t{1} << 40);
  if (isNegative) number = -number;
  if (i == begin || number != static_cast<std::int32_t>(number)) return false;
  *value = static_cast<std::int32_t>(number);
  return true;
}

template <typename Value, typename Text>
bool ParsesAs(bool (*parse)(Text, Value*), Text text, bool parsed, Value expected) {
  Value value = 77;
  if (parse(text, &value) != parsed) return false;
  if (!parsed) expected = 77;
  return std::memcmp(&value, &expected, sizeof value) == 0;  // every NaN is the same one
}

void CheckNumbers(const std::string& text) {
  double number = 0.0;
  const bool isNumber = ParseDouble(text, &number);
  if (!IsAscii(text)) return;
  std::int32_t digits = 0;
  const bool hasDigits = ParseDigits(text, &digits);
  const std::wstring wide = WideCopy(text);
  Require(ParsesAs<std::int32_t, std::string_view>(ParseInt, text, hasDigits, digits),
          "an integer is what its digits say");
  Require(ParsesAs<std::int32_t, std::wstring_view>(ParseInt, wide, hasDigits, digits),
          "wide digits say the same");
  Require(ParsesAs<double, std::wstring_view>(ParseDouble, wide, isNumber, number),
          "a wide number is the narrow one");
}

void CheckFields(const std::string& text) {
  std::vector<std::string> fields;
  Require(Split(text, &fields) == !text.empty(), "a text has fields unless it is empty");
  std::string joined;
  for (const std::string& field : fields) {
    Require(field.find(',') == std::string::npos, "a field has no comma");
    joined += field + ',';
  }
  if (text.empty() || text.back() != ',') joined.resize(joined.size() - !joined.empty());
  Require(joined == text, "the fields are the text");
}

void CheckTexts(const std::string& text) {
  const std::string upToNul = text.substr(0, text.find('\0'));
  Require(NarrowCopy(WideCopy(text)) == upToNul, "every byte comes back from wide text");
  std::wstring wide(text.size() / sizeof(wchar_t), L'\0');
  std::memcpy(wide.data(), text.data(), wide.size() * sizeof(wchar_t));
  const std::string narrow = NarrowCopy(wide);
  Require(NarrowCopy(WideCopy(narrow)) == narrow, "what can be encoded comes back");

  Require(TemporaryName(text, text).find_first_of("\\/") == std::string::npos,
          "a temporary file lies in its directory itself");

  char* array = nullptr;
  std::int32_t size = 0;
  const bool copied = CopyToByteArray(text, &array, &size);
  const std::unique_ptr<char[]> owned(array);
  Require(copied == !text.empty() && size == static_cast<std::int32_t>(text.size() + copied),
          "every text but the empty one is copied");
  Require(
      !copied || (text.compare(0, text.size(), array, text.size()) == 0 && array[size - 1] == 0),
      "a copy is the text and a NUL");
}

void CheckTruncation(double value) {
  const double whole = std::trunc(value);
  const bool fits = whole >= -2147483648.0 && whole <= 2147483647.0;
  Require(TruncateToInt32(value) == (fits ? whole : -2147483648.0), "a double is truncated");
  ToMicrometres(value);
  const double modulus = 4294967296.0;
  const double wrapped = std::fmod(std::fmod(whole, modulus) + modulus, modulus);
  const bool fits64 = whole >= -9223372036854775808.0 && whole < 9223372036854775808.0;
  Require(TruncateToUint32(value) == (fits64 ? wrapped : 0.0), "a double wraps");
}

void CheckIntegers(std::int32_t a, std::int32_t b) {
  std::int32_t value = 0;
  Require(ParseInt(IntToString(a), &value) && value == a, "an integer's text is the integer");
  const std::int64_t difference = std::int64_t{a} + b - WrappingAdd(a, b);
  Require(difference % (std::int64_t{1} << 32) == 0, "a sum is exact modulo 2^32");

  const std::string digits = FormatThreeDigits(a);
  std::string last;
  Require(FormatLastThreeDigits(a, &last) && last.size() == 3, "an id takes three characters");
  Require(digits.size() >= 3 && digits.substr(digits.size() - 3) == last, "they are the last");
}

}  // namespace
}  // namespace tavrin

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  using namespace tavrin;
  const std::string text(reinterpret_cast<const char*>(data), size);
  CheckNumbers(text);
  CheckFields(text);
  CheckTexts(text);
  double value = 0.0;
  if (size >= sizeof value) {
    std::memcpy(&value, data, sizeof value);
    std::int32_t halves[2];
    std::memcpy(halves, data, sizeof halves);
    CheckTruncation(value);
    CheckIntegers(halves[0], halves[1]);
  } else if (ParseDouble(text, &value)) {
    CheckTruncation(value);
  }
  return 0;
}
