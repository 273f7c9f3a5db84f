#include "definition/ValueConversion.h"

#include <algorithm>
#include <stdexcept>

namespace tavrin {

namespace {

template <typename Text, typename Value, typename Convert>
bool Parse(const Text& text, Value* value, Convert convert) {
  if (text.empty()) return false;
  try {
    *value = convert(text);
    return true;
  } catch (const std::invalid_argument&) {
    return false;
  } catch (const std::out_of_range&) {
    return false;
  }
}

template <typename Text>
bool ParseIntOf(const Text& text, std::int32_t* value) {
  return Parse(text, value, [](const Text& digits) { return std::stoi(digits); });
}

template <typename Text>
bool ParseDoubleOf(const Text& text, double* value) {
  return Parse(text, value, [](const Text& digits) { return std::stod(digits); });
}

}  // namespace

bool ParseInt(const std::string& text, std::int32_t* value) {
  return ParseIntOf(text, value);
}

bool ParseInt(const std::wstring& text, std::int32_t* value) {
  return ParseIntOf(text, value);
}

bool ParseDouble(const std::string& text, double* value) {
  return ParseDoubleOf(text, value);
}

bool ParseDouble(const std::wstring& text, double* value) {
  return ParseDoubleOf(text, value);
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
