#include "util/TextUtilities.h"

namespace tavrin {

namespace {

constexpr std::size_t kDigits = 3;

}  // namespace

std::string FormatThreeDigits(std::int32_t value) {
  std::string text = std::to_string(value);
  if (text.size() < kDigits) text.insert(0, kDigits - text.size(), '0');
  return text;
}

bool FormatLastThreeDigits(std::int32_t value, std::string* text) {
  *text = FormatThreeDigits(value);
  text->erase(0, text->size() - kDigits);
  return true;
}

bool CopyToByteArray(const std::string& text, char** array, std::int32_t* size) {
  if (text.empty() || array == nullptr) return false;
  *array = new char[text.size() + 1]();
  *size = static_cast<std::int32_t>(text.size() + 1);
  text.copy(*array, text.size());
  return true;
}

}  // namespace tavrin
