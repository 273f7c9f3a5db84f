#include "definition/ValueConversion.h"

#include <algorithm>
#include <charconv>
#include <cmath>
#include <limits>
#include <stdexcept>
#include <system_error>

#include "definition/WideText.h"

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

/// What a number's characters can be among, at the start of text. Narrow, because the conversions
/// of the runtimes agree on narrow ASCII.
std::string NumberText(std::wstring_view text) {
  const auto begin = std::find_if_not(text.begin(), text.end(), IsSpace);
  return std::string(begin, std::find_if_not(begin, text.end(), IsAscii));
}

std::string NumberText(std::string_view text) {
  const auto isSpace = [](char c) { return IsAscii(c) && IsSpace(c); };
  const auto begin = std::find_if_not(text.begin(), text.end(), isSpace);
  // Only its encoding tells whether white space beyond ASCII stands in front.
  if (begin != text.end() && !IsAscii(*begin))
    return NumberText(WideText(std::string(text)).c_str());
  return std::string(begin, std::find_if_not(begin, text.end(), IsAscii));
}

template <typename Text>
bool ParseIntOf(const Text& text, std::int32_t* value) {
  const std::string number = NumberText(text);
  const char* first = number.c_str();
  if (first[0] == '+' && first[1] != '-') ++first;  // a sign that from_chars does not take
  return std::from_chars(first, number.data() + number.size(), *value).ec == std::errc();
}

template <typename Text>
bool ParseDoubleOf(const Text& text, double* value) {
  try {
    const double number = std::stod(NumberText(text));
    // Sign and payload of a NaN differ from runtime to runtime.
    *value = std::isnan(number) ? std::numeric_limits<double>::quiet_NaN() : number;
    return true;
  } catch (const std::invalid_argument&) {
    return false;
  } catch (const std::out_of_range&) {
    return false;
  }
}

}  // namespace

bool ParseInt(std::string_view text, std::int32_t* value) {
  return ParseIntOf(text, value);
}

bool ParseInt(std::wstring_view text, std::int32_t* value) {
  return ParseIntOf(text, value);
}

bool ParseDouble(std::string_view text, double* value) {
  return ParseDoubleOf(text, value);
}

bool ParseDouble(std::wstring_view text, double* value) {
  return ParseDoubleOf(text, value);
}

std::string IntToString(std::int32_t value) {
  return std::to_string(value);
}

bool Split(const std::string& text, std::vector<std::string>* fields) {
  fields->clear();
  fields->reserve(1 + static_cast<std::size_t>(std::count(text.begin(), text.end(), ',')));
  for (std::size_t begin = 0; begin < text.size();) {
    const std::size_t comma = std::min(text.find(',', begin), text.size());
    fields->push_back(text.substr(begin, comma - begin));
    begin = comma + 1;
  }
  return !fields->empty();
}

}  // namespace tavrin
