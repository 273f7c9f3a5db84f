#include "sheet/Html.h"

#include <algorithm>
#include <cmath>
#include <cstdio>

#include "files/TextForms.h"

namespace tavrin::tool {

namespace {

/// The number of the last place, which is 10 to the power of places, with the point put in.
std::string WithPoint(std::int64_t number, int places) {
  std::string digits = std::to_string(number < 0 ? -number : number);
  const auto least = static_cast<std::size_t>(places) + 1;
  if (digits.size() < least) digits.insert(0, least - digits.size(), '0');
  digits.insert(digits.size() - static_cast<std::size_t>(places), ".");
  digits.erase(digits.find_last_not_of('0') + 1);
  if (digits.back() == '.') digits.pop_back();
  return (number < 0 ? "-" : "") + digits;
}

/// Of the UTF-8 character that begins at i, which then is its last byte.
char32_t CharacterAt(const std::string& text, std::size_t* i) {
  const auto lead = static_cast<unsigned char>(text[*i]);
  const int tails = lead >= 0xF0 ? 3 : lead >= 0xE0 ? 2 : 1;
  char32_t c = lead & (0x3Fu >> tails);
  for (int tail = 0; tail < tails && *i + 1 < text.size(); ++tail)
    c = c << 6 | (static_cast<unsigned char>(text[++*i]) & 0x3Fu);
  return c;
}

/// Those that no HTML may have.
bool IsNoCharacter(char32_t c) {
  return (c >= 0xD800 && c < 0xE000) || (c >= 0xFDD0 && c < 0xFDF0) || (c & 0xFFFEu) == 0xFFFEu;
}

}  // namespace

Html Html::Text(const std::string& text) {
  Html html;
  for (const char c : EscapedUtf8(text)) {
    switch (c) {
      case '&':
        html.markup_ += "&amp;";
        break;
      case '<':
        html.markup_ += "&lt;";
        break;
      case '>':
        html.markup_ += "&gt;";
        break;
      case '"':
        html.markup_ += "&quot;";
        break;
      case '\'':
        html.markup_ += "&#39;";
        break;
      default:
        html.markup_ += c;
    }
  }
  return html;
}

Html Html::Number(std::int64_t number) {
  Html html;
  html.markup_ = std::to_string(number);
  return html;
}

Html Html::In(const Html& tag) const {
  Html html;
  const std::string name = tag.markup_.substr(0, tag.markup_.find(' '));
  html.markup_ = '<' + tag.markup_ + '>' + markup_ + "</" + name + '>';
  return html;
}

Html& Html::operator+=(const Html& other) {
  markup_ += other.markup_;
  return *this;
}

std::string Html::Ascii() const {
  std::string ascii;
  for (std::size_t i = 0; i < markup_.size(); ++i) {
    if (static_cast<unsigned char>(markup_[i]) < 0x80) {
      ascii += markup_[i];
      continue;
    }
    const char32_t c = CharacterAt(markup_, &i);
    char reference[16];
    std::snprintf(reference, sizeof reference, "&#x%X;",
                  IsNoCharacter(c) ? 0xFFFDu : static_cast<unsigned>(c));
    ascii += reference;
  }
  return ascii;
}

Html operator+(Html a, const Html& b) {
  a += b;
  return a;
}

Html Decimal(double number, int places) {
  // Rounded here, as the C libraries differ in how they round.
  const double limit = 1e12;
  const double scaled = std::clamp(number, -limit, limit) * std::pow(10.0, places);
  return Html::Text(WithPoint(std::llround(scaled), places));
}

Html Millimetres(std::int64_t micrometres) {
  return Html::Text(WithPoint(micrometres, 3)) + "\u00A0mm";
}

}  // namespace tavrin::tool
