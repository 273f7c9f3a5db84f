#include "platform/portable/LocaleCodec.h"

#include <cerrno>
#include <climits>
#include <cstring>
#include <cwchar>
#include <new>

#include <langinfo.h>

namespace tavrin::platform {

namespace {

constexpr wchar_t kReplacement = 0xFFFD;
constexpr wchar_t kEscapeBase = 0xDC00;
constexpr char kSubstitute = '?';

bool IsEscapedByte(wchar_t c) {
  return c >= kEscapeBase + 0x80 && c <= kEscapeBase + 0xFF;
}

void AppendUndecodable(char byte, LocaleCodec::Undecodable undecodable, std::wstring* wide) {
  const auto value = static_cast<wchar_t>(static_cast<unsigned char>(byte));
  wide->push_back(undecodable == LocaleCodec::Undecodable::Escape ? kEscapeBase + value
                                                                  : kReplacement);
}

/// Decodes the UTF-8 sequence at the start of bytes.
///
/// @return its length; 0 when there is none.
std::size_t DecodeUtf8(std::string_view bytes, wchar_t* c) {
  const auto byteAt = [&](std::size_t i) { return static_cast<unsigned char>(bytes[i]); };
  const unsigned char lead = byteAt(0);
  const std::size_t length = lead < 0x80   ? 1
                             : lead < 0xC2 ? 0
                             : lead < 0xE0 ? 2
                             : lead < 0xF0 ? 3
                             : lead < 0xF5 ? 4
                                           : 0;
  if (length == 0 || length > bytes.size()) return 0;

  std::uint32_t value = length == 1 ? lead : lead & (0x7Fu >> length);
  for (std::size_t i = 1; i < length; ++i) {
    if ((byteAt(i) & 0xC0u) != 0x80u) return 0;
    value = value << 6 | (byteAt(i) & 0x3Fu);
  }
  const bool overlong = (length == 3 && value < 0x800) || (length == 4 && value < 0x10000);
  const bool surrogate = value >= 0xD800 && value <= 0xDFFF;
  if (overlong || surrogate || value > 0x10FFFF) return 0;
  *c = static_cast<wchar_t>(value);
  return length;
}

/// Encodes c as UTF-8.
///
/// @return the length; 0 when c is no character.
std::size_t EncodeUtf8(wchar_t c, char* bytes) {
  const auto value = static_cast<std::uint32_t>(c);
  if (value > 0x10FFFF || (value >= 0xD800 && value <= 0xDFFF)) return 0;
  const std::size_t length = value < 0x80 ? 1 : value < 0x800 ? 2 : value < 0x10000 ? 3 : 4;
  const std::uint32_t lead = length == 1 ? 0 : 0xF00u >> length & 0xFFu;
  for (std::size_t i = 0; i < length; ++i) {
    const auto bits = value >> 6 * (length - 1 - i);
    bytes[i] = static_cast<char>(i == 0 ? lead | bits : 0x80u | (bits & 0x3Fu));
  }
  return length;
}

std::size_t DecodeLocale(std::string_view bytes, wchar_t* c) {
  std::mbstate_t state{};
  const std::size_t length = std::mbrtowc(c, bytes.data(), bytes.size(), &state);
  if (length == 0) return 1;  // a NUL
  return length > bytes.size() ? 0 : length;
}

std::size_t EncodeLocale(wchar_t c, char* bytes) {
  std::mbstate_t state{};
  const std::size_t length = std::wcrtomb(bytes, c, &state);
  return length == static_cast<std::size_t>(-1) ? 0 : length;
}

/// Makes a locale the calling thread's own for a scope; none leaves the thread's as it is.
class ScopedLocale {
 public:
  explicit ScopedLocale(locale_t locale)
      : previous_(locale == nullptr ? nullptr : uselocale(locale)) {}
  ~ScopedLocale() {
    if (previous_ != nullptr) uselocale(previous_);
  }
  ScopedLocale(const ScopedLocale&) = delete;
  ScopedLocale& operator=(const ScopedLocale&) = delete;

 private:
  locale_t previous_;
};

}  // namespace

LocaleCodec::LocaleCodec() : locale_(newlocale(LC_CTYPE_MASK, "", nullptr)) {
  if (locale_ == nullptr && errno == ENOMEM) throw std::bad_alloc();
  if (locale_ == nullptr) return;
  const char* codeset = nl_langinfo_l(CODESET, locale_);
  // The C locale's ASCII says that nobody chose an encoding.
  if (std::strcmp(codeset, "UTF-8") == 0 || std::strcmp(codeset, "ANSI_X3.4-1968") == 0) {
    freelocale(locale_);
    locale_ = nullptr;
  }
}

LocaleCodec::~LocaleCodec() {
  if (locale_ != nullptr) freelocale(locale_);
}

void LocaleCodec::AppendWide(std::string_view bytes, Undecodable undecodable,
                             std::wstring* wide) const {
  const ScopedLocale scope(locale_);
  while (!bytes.empty()) {
    wchar_t c = 0;
    const std::size_t length = locale_ == nullptr ? DecodeUtf8(bytes, &c) : DecodeLocale(bytes, &c);
    if (length == 0) {
      AppendUndecodable(bytes.front(), undecodable, wide);
    } else {
      wide->push_back(c);
    }
    bytes.remove_prefix(length == 0 ? 1 : length);
  }
}

bool LocaleCodec::AppendNarrow(std::wstring_view wide, std::string* narrow) const {
  const ScopedLocale scope(locale_);
  bool complete = true;
  for (const wchar_t c : wide) {
    char bytes[MB_LEN_MAX] = {};
    std::size_t length = locale_ == nullptr ? EncodeUtf8(c, bytes) : EncodeLocale(c, bytes);
    if (length == 0) {
      length = 1;
      bytes[0] = IsEscapedByte(c) ? static_cast<char>(c - kEscapeBase) : kSubstitute;
      complete = complete && (IsEscapedByte(c) || c == kReplacement);
    }
    narrow->append(bytes, length);
  }
  return complete;
}

}  // namespace tavrin::platform
