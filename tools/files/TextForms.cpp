#include "files/TextForms.h"

#include <algorithm>
#include <cstdint>
#include <cstdio>

#include "definition/TextConversion.h"
#include "files/StandardStreams.h"

namespace tavrin::tool {

namespace {

// Bytes that are no character stand in a wide text as these low surrogates without a high one.
constexpr char32_t kByteBase = 0xDC00;

bool IsByte(char32_t c) {
  return c >= kByteBase + 0x80 && c <= kByteBase + 0xFF;
}

std::u32string CharactersOf(const std::string& text) {
  const std::wstring wide = WideCopy(text);
  std::u32string characters;
  if (wide.empty()) {
    // Where a platform converts all or nothing, what is ASCII remains legible.
    for (const char byte : text) {
      const auto c = static_cast<unsigned char>(byte);
      characters += c < 0x80 ? c : kByteBase + c;
    }
  }
  for (std::size_t i = 0; i < wide.size(); ++i) {
    auto c = static_cast<char32_t>(wide[i]);
    const bool isLead = c >= 0xD800 && c < 0xDC00 && i + 1 < wide.size();
    if (isLead) c = 0x10000 + ((c - 0xD800) << 10) + (static_cast<char32_t>(wide[++i]) & 0x3FFu);
    characters += c;
  }
  return characters;
}

/// Those of the order of writing as well, which can make a text look like another.
bool IsControl(char32_t c) {
  return c < 0x20 || (c >= 0x7F && c < 0xA0) || (c >= 0x200E && c <= 0x200F) ||
         (c >= 0x2028 && c <= 0x202E) || (c >= 0x2066 && c <= 0x2069);
}

void AppendUtf8(char32_t c, std::string* utf8) {
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

void AppendEscape(char32_t c, std::string* text) {
  char escape[16];
  const char* form = c < 0x80 || IsByte(c) ? "\\x%02X" : c < 0x10000 ? "\\u%04X" : "\\U%08X";
  std::snprintf(escape, sizeof escape, form, static_cast<unsigned>(IsByte(c) ? c - kByteBase : c));
  text->append(escape);
}

std::string Escaped(const std::string& text, bool asAscii) {
  std::string escaped;
  for (const char32_t c : CharactersOf(text)) {
    if (IsControl(c) || IsByte(c) || (asAscii && c >= 0x80)) {
      AppendEscape(c, &escaped);
    } else {
      AppendUtf8(c, &escaped);
    }
  }
  return escaped;
}

}  // namespace

std::string Printable(const std::string& text) {
  return Escaped(text, !TakesUtf8());
}

std::string EscapedUtf8(const std::string& text) {
  return Escaped(text, false);
}

std::string ToUtf8(const std::string& text) {
  std::string utf8;
  for (const char32_t c : CharactersOf(text))
    AppendUtf8(c, &utf8);
  return utf8;
}

std::size_t CountCharacters(const std::string& text) {
  return CharactersOf(text).size();
}

}  // namespace tavrin::tool
