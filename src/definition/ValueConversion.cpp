#include "definition/ValueConversion.h"

#include <algorithm>
#include <cmath>
#include <limits>
#include <new>
#include <stdexcept>

#include "definition/TextConversion.h"

namespace tavrin {

namespace {

/// White space as Windows has it. Other runtimes have their own, that of MinGW two kinds.
bool IsSpace(wchar_t c) {
  return (c >= 0x09 && c <= 0x0D) || c == 0x20 || c == 0x85 || c == 0xA0 || c == 0x1680 ||
         (c >= 0x2000 && c <= 0x200A) || c == 0x2028 || c == 0x2029 || c == 0x202F || c == 0x205F ||
         c == 0x3000;
}

bool IsAscii(wchar_t c) {
  return static_cast<char32_t>(c) < 0x80;
}

/// WideCopy, but that an exhausted memory must not make a number look like none.
std::wstring Widened(const std::string& text) {
  std::wstring wide;
  if (!ToWide(text, &wide)) throw std::bad_alloc();
  return wide;
}

/// What a number's characters can be among, at the start of text. Narrow, because the conversions
/// of the runtimes agree on narrow ASCII.
std::string NumberText(const std::wstring& text) {
  const auto begin = std::find_if_not(text.begin(), text.end(), IsSpace);
  return std::string(begin, std::find_if_not(begin, text.end(), IsAscii));
}

std::string NumberText(const std::string& text) {
  const auto begin = std::find_if_not(text.begin(), text.end(), IsSpace);
  // Only its encoding tells whether white space beyond ASCII stands in front.
  if (begin != text.end() && !IsAscii(*begin)) return NumberText(Widened(text));
  return std::string(begin, std::find_if_not(begin, text.end(), IsAscii));
}

template <typename Text, typename Value, typename Convert>
bool Parse(const Text& text, Value* value, Convert convert) {
  try {
    *value = convert(NumberText(text));
    return true;
  } catch (const std::invalid_argument&) {
    return false;
  } catch (const std::out_of_range&) {
    return false;
  }
}

int ToInt(const std::string& digits) {
  return std::stoi(digits);
}

/// Sign and payload of a NaN differ from runtime to runtime.
double ToDouble(const std::string& digits) {
  const double value = std::stod(digits);
  return std::isnan(value) ? std::numeric_limits<double>::quiet_NaN() : value;
}

}  // namespace

bool ParseInt(const std::string& text, std::int32_t* value) {
  return Parse(text, value, ToInt);
}

bool ParseInt(const std::wstring& text, std::int32_t* value) {
  return Parse(text, value, ToInt);
}

bool ParseDouble(const std::string& text, double* value) {
  return Parse(text, value, ToDouble);
}

bool ParseDouble(const std::wstring& text, double* value) {
  return Parse(text, value, ToDouble);
}

std::string IntToString(std::int32_t value) {
  return std::to_string(value);
}

bool Split(const std::string& text, std::vector<std::string>* fields) {
  fields->clear();
  for (std::size_t begin = 0; begin < text.size();) {
    const std::size_t comma = std::min(text.find(',', begin), text.size());
    fields->push_back(text.substr(begin, comma - begin));
    begin = comma + 1;
  }
  return !fields->empty();
}

}  // namespace tavrin
