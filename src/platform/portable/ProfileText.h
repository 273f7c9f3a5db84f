#pragma once

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>

namespace tavrin::platform {

template <typename Unit>
bool IsLineEnd(Unit c) {
  return c <= '\r' && (c == '\n' || c == '\r');  // nearly every character takes one comparison
}

/// Takes the first line off rest, with its end: CR LF, LF or CR, or the end of the text.
///
/// REQUIRES: rest is not empty.
///
/// @return the line without its end.
template <typename Unit>
std::basic_string_view<Unit> TakeLine(std::basic_string_view<Unit>* rest) {
  const std::basic_string_view<Unit> text = *rest;
  const auto end = std::find_if(text.begin(), text.end(), IsLineEnd<Unit>);
  const auto length = static_cast<std::size_t>(end - text.begin());
  const bool isCrLf = length + 1 < text.size() && text[length] == '\r' && text[length + 1] == '\n';
  const std::size_t endLength = isCrLf ? 2 : length < text.size() ? 1 : 0;
  rest->remove_prefix(length + endLength);
  return text.substr(0, length);
}

template <typename Unit>
bool IsBlank(Unit c) {
  return c <= ' ' && (c == ' ' || c == '\t' || c == '\v' || c == '\f' || c == '\x1A');
}

template <typename Unit>
std::basic_string_view<Unit> Trim(std::basic_string_view<Unit> text) {
  while (!text.empty() && IsBlank(text.front()))
    text.remove_prefix(1);
  while (!text.empty() && IsBlank(text.back()))
    text.remove_suffix(1);
  return text;
}

/// The name or value that a part of a line spells. A NUL in it ends it early, which is why blanks
/// before the NUL stay.
template <typename Unit>
std::basic_string_view<Unit> Spelled(std::basic_string_view<Unit> part) {
  const std::basic_string_view<Unit> text = Trim(part);
  return text.substr(0, text.find(Unit{}));
}

// What follows is made for char, where a text is ASCII, and for wchar_t.

/// A line without '=' is a key without a value.
template <typename Char>
struct ProfileLine {
  enum class Kind { Empty, Comment, Header, Key, BareKey };

  Kind kind = Kind::Empty;
  std::basic_string_view<Char> name = {};   ///< of the section or the key
  std::basic_string_view<Char> value = {};  ///< as written, with its quotes

  bool IsHeader() const { return kind == Kind::Header; }
  bool IsComment() const { return kind == Kind::Comment; }
  bool IsKey() const { return kind == Kind::Key || kind == Kind::BareKey; }
};

template <typename Char>
ProfileLine<Char> ParseLine(std::basic_string_view<Char> line);

/// What readers get of a value as written: without the one pair of equal quotes round it, and cut
/// to its length modulo 65536, as the profile functions keep lengths in 16 bits.
template <typename Char>
std::basic_string_view<Char> ReadableValue(std::basic_string_view<Char> written);

/// The start of text that fills at most limit UTF-16 units, the unit of all lengths on Windows.
template <typename Char>
std::basic_string_view<Char> CutToUnits(std::basic_string_view<Char> text, std::size_t limit);

/// Names are compared without regard to the case of ASCII letters.
template <typename Char>
bool SameName(std::basic_string_view<Char> a, std::basic_string_view<Char> b);

/// A section or key as the caller names it, without the spaces round it.
std::wstring_view StripSpaces(std::wstring_view name);

/// Little-endian UTF-16 with a mark as its first unit. Odd byte counts lose their last byte.
class Utf16Encoding {
 public:
  using Unit = char16_t;

  static constexpr std::size_t kMarkLength = 1;

  static bool HasMark(std::string_view bytes) { return bytes.substr(0, 2) == "\xFF\xFE"; }
  static std::u16string FromBytes(std::string_view bytes);
  static std::string ToBytes(std::u16string_view text);

  static void AppendWide(std::u16string_view text, std::wstring* wide);
  static void AppendUnits(std::wstring_view wide, std::u16string* text);
};

}  // namespace tavrin::platform
