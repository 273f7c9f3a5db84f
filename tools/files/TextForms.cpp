#include "files/TextForms.h"

#include <algorithm>
#include <cstdint>

#include "definition/TextConversion.h"

namespace tavrin::tool {

namespace {

bool IsControl(wchar_t c) {
  return c < 0x20 || (c >= 0x7F && c < 0xA0);
}

void AppendUtf8(std::uint32_t c, std::string* utf8) {
  if (c < 0x80) {
    utf8->push_back(static_cast<char>(c));
    return;
  }
  const int tails = c < 0x800 ? 1 : c < 0x10000 ? 2 : 3;
  const std::uint32_t lead = 0xF80u >> tails & 0xFFu;
  utf8->push_back(static_cast<char>(lead | c >> 6 * tails));
  for (int i = tails - 1; i >= 0; --i)
    utf8->push_back(static_cast<char>(0x80u | (c >> 6 * i & 0x3Fu)));
}

}  // namespace

std::string Printable(const std::string& text) {
  std::wstring wide = WideCopy(text);
  if (std::none_of(wide.begin(), wide.end(), IsControl)) return text;
  std::replace_if(wide.begin(), wide.end(), IsControl, L'?');
  return NarrowCopy(wide);
}

std::string ToUtf8(const std::string& text) {
  const std::wstring wide = WideCopy(text);
  std::string utf8;
  for (std::size_t i = 0; i < wide.size(); ++i) {
    auto c = static_cast<std::uint32_t>(wide[i]);
    const bool isLead = c >= 0xD800 && c < 0xDC00 && i + 1 < wide.size();
    if (isLead)
      c = 0x10000 + ((c - 0xD800) << 10) + (static_cast<std::uint32_t>(wide[++i]) & 0x3FFu);
    AppendUtf8(c, &utf8);
  }
  return utf8;
}

}  // namespace tavrin::tool
