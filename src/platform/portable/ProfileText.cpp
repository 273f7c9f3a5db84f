#include "platform/portable/ProfileText.h"

#include <algorithm>

#include "platform/portable/LetterCase.h"

namespace tavrin::platform {

namespace {

constexpr char32_t kReplacement = 0xFFFD;
constexpr char32_t kFirstAstral = 0x10000;
constexpr char32_t kLastCharacter = 0x10FFFF;
constexpr char32_t kHighSurrogates = 0xD800;
constexpr char32_t kLowSurrogates = 0xDC00;
constexpr char32_t kSurrogatesPerHalf = 0x400;

template <typename Char>
bool IsAstral(Char c) {
  return sizeof c > 1 && static_cast<char32_t>(c) >= kFirstAstral;
}

bool IsSurrogateOf(char32_t half, char32_t c) {
  return c >= half && c < half + kSurrogatesPerHalf;
}

template <typename Char>
std::basic_string_view<Char> Unquote(std::basic_string_view<Char> value) {
  const bool isQuoted = value.size() >= 2 && value.front() == value.back() &&
                        (value.front() == '"' || value.front() == '\'');
  return isQuoted ? value.substr(1, value.size() - 2) : value;
}

}  // namespace

template <typename Char>
ProfileLine<Char> ParseLine(std::basic_string_view<Char> line) {
  using Kind = typename ProfileLine<Char>::Kind;
  const std::basic_string_view<Char> text = Trim(line);
  if (text.empty()) return {};
  if (text.front() == ';') return {Kind::Comment, {}, {}};
  if (text.front() == '[') return {Kind::Header, Spelled(text.substr(1, text.find(']') - 1)), {}};
  const std::size_t equals = text.find('=');
  if (equals == text.npos) return {Kind::BareKey, Spelled(text), {}};
  return {Kind::Key, Spelled(text.substr(0, equals)), Spelled(text.substr(equals + 1))};
}

template <typename Char>
std::basic_string_view<Char> ReadableValue(std::basic_string_view<Char> written) {
  constexpr std::size_t kModulus = 0x10000;
  const std::basic_string_view<Char> value = Unquote(written);
  if (value.size() < kModulus / 2) return value;
  const auto astral = std::count_if(value.begin(), value.end(), IsAstral<Char>);
  return CutToUnits(value, (value.size() + static_cast<std::size_t>(astral)) % kModulus);
}

template <typename Char>
std::basic_string_view<Char> CutToUnits(std::basic_string_view<Char> text, std::size_t limit) {
  if (text.size() <= limit / 2) return text;
  std::size_t length = 0;
  for (std::size_t units = 0; length < text.size(); ++length) {
    units += IsAstral(text[length]) ? 2 : 1;
    if (units > limit) break;
  }
  return text.substr(0, length);
}

template <typename Char>
bool SameName(std::basic_string_view<Char> a, std::basic_string_view<Char> b) {
  const auto isSame = [](Char c, Char d) { return Fold(c) == Fold(d); };
  return a.size() == b.size() && (a == b || std::equal(a.begin(), a.end(), b.begin(), isSame));
}

template ProfileLine<char> ParseLine(std::string_view);
template ProfileLine<wchar_t> ParseLine(std::wstring_view);
template std::string_view ReadableValue(std::string_view);
template std::wstring_view ReadableValue(std::wstring_view);
template std::string_view CutToUnits(std::string_view, std::size_t);
template std::wstring_view CutToUnits(std::wstring_view, std::size_t);
template bool SameName(std::string_view, std::string_view);
template bool SameName(std::wstring_view, std::wstring_view);

std::wstring_view StripSpaces(std::wstring_view name) {
  while (!name.empty() && name.front() == L' ')
    name.remove_prefix(1);
  while (!name.empty() && name.back() == L' ')
    name.remove_suffix(1);
  return name;
}

std::u16string Utf16Encoding::FromBytes(std::string_view bytes) {
  std::u16string text(bytes.size() / 2, u'\0');
  for (std::size_t i = 0; i < text.size(); ++i) {
    const auto low = static_cast<unsigned char>(bytes[2 * i]);
    const auto high = static_cast<unsigned char>(bytes[2 * i + 1]);
    text[i] = static_cast<char16_t>(low | high << 8);
  }
  return text;
}

std::string Utf16Encoding::ToBytes(std::u16string_view text) {
  std::string bytes;
  bytes.reserve(2 * text.size());
  for (const char16_t unit : text) {
    bytes.push_back(static_cast<char>(unit & 0xFF));
    bytes.push_back(static_cast<char>(unit >> 8));
  }
  return bytes;
}

void Utf16Encoding::AppendWide(std::u16string_view text, std::wstring* wide) {
  for (std::size_t i = 0; i < text.size(); ++i) {
    char32_t c = text[i];
    const char32_t next = i + 1 < text.size() ? text[i + 1] : 0;
    if (IsSurrogateOf(kHighSurrogates, c) && IsSurrogateOf(kLowSurrogates, next)) {
      if (sizeof(wchar_t) == sizeof(char16_t)) {
        wide->append({static_cast<wchar_t>(c), static_cast<wchar_t>(next)});
        ++i;
        continue;
      }
      c = kFirstAstral + (c - kHighSurrogates) * kSurrogatesPerHalf + (next - kLowSurrogates);
      ++i;
    } else if (IsSurrogateOf(kHighSurrogates, c) || IsSurrogateOf(kLowSurrogates, c)) {
      c = kReplacement;
    }
    wide->push_back(static_cast<wchar_t>(c));
  }
}

void Utf16Encoding::AppendUnits(std::wstring_view wide, std::u16string* text) {
  for (const wchar_t wideCharacter : wide) {
    const auto c = static_cast<char32_t>(wideCharacter);
    if (c > kLastCharacter) {
      text->push_back(u'?');
    } else if (c >= kFirstAstral) {
      const char32_t offset = c - kFirstAstral;
      text->push_back(static_cast<char16_t>(kHighSurrogates + offset / kSurrogatesPerHalf));
      text->push_back(static_cast<char16_t>(kLowSurrogates + offset % kSurrogatesPerHalf));
    } else {
      text->push_back(static_cast<char16_t>(c));
    }
  }
}

}  // namespace tavrin::platform
