#include "definition/ValueConversion.h"

#include <algorithm>
#include <cerrno>
#include <charconv>
#include <cmath>
#include <cstdlib>
#include <limits>
#include <system_error>
#include <utility>

namespace tavrin {

namespace {

/// White space as Windows has it. Other runtimes have their own, that of MinGW two kinds.
bool IsSpace(wchar_t c) {
  return (c >= 0x09 && c <= 0x0D) || c == 0x20 || c == 0x85 || c == 0xA0 || c == 0x1680 ||
         (c >= 0x2000 && c <= 0x200A) || c == 0x2028 || c == 0x2029 || c == 0x202F || c == 0x205F ||
         c == 0x3000;
}

template <typename Char>
bool IsAscii(Char c) {
  return static_cast<char32_t>(c) < 0x80;
}

/// What a number's characters can be among, at the start of text. Narrow, because the conversions
/// of the runtimes agree on narrow ASCII.
template <typename Char>
std::string NumberText(std::basic_string_view<Char> text) {
  // What a char beyond ASCII stands for, its encoding alone tells.
  const auto isSpace = [](Char c) { return (sizeof c > 1 || IsAscii(c)) && IsSpace(c); };
  const auto begin = std::find_if_not(text.begin(), text.end(), isSpace);
  return std::string(begin, std::find_if_not(begin, text.end(), IsAscii<Char>));
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
  const std::string number = NumberText(text);
  char* end = nullptr;
  const int previous = std::exchange(errno, 0);
  const double parsed = std::strtod(number.c_str(), &end);
  const bool isOutside = errno == ERANGE && (parsed == 0.0 || std::isinf(parsed));
  errno = previous;
  if (end == number.c_str() || isOutside) return false;
  // Sign and payload of a NaN differ from runtime to runtime.
  *value = std::isnan(parsed) ? std::numeric_limits<double>::quiet_NaN() : parsed;
  return true;
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
