#include "platform/TextEncoding.h"

#include <algorithm>
#include <utility>

#include "platform/portable/LocaleCodec.h"

namespace tavrin::platform {

namespace {

/// Copies text, up to its first NUL, if it is ASCII throughout. Every encoding that a locale can
/// name has ASCII in its place, so plain names and numbers, nearly all there is, need no codec.
template <typename From, typename To>
bool CopyAscii(const From& text, To* copy) {
  using Unit = typename From::value_type;
  const auto ends = [](Unit c) { return c <= 0 || c >= 0x80; };
  const auto end = std::find_if(text.begin(), text.end(), ends);
  if (end != text.end() && *end != Unit{}) return false;
  *copy = To(text.begin(), end);
  return true;
}

template <typename Text>
Text UpToNul(const Text& text) {
  return text.substr(0, text.find(typename Text::value_type{}));
}

/// Runs a conversion, whose only failure is an exhausted memory.
template <typename Convert>
bool Succeeds(Convert convert) {
  try {
    convert();
    return true;
  } catch (...) {
    return false;
  }
}

}  // namespace

bool ToNarrow(const std::wstring& wide, std::string* narrow) {
  return Succeeds([&] {
    if (CopyAscii(wide, narrow)) return;
    std::string encoded;
    if (!LocaleCodec().AppendNarrow(UpToNul(wide), &encoded)) encoded.clear();
    *narrow = std::move(encoded);
  });
}

bool ToWide(const std::string& narrow, std::wstring* wide) {
  return Succeeds([&] {
    if (CopyAscii(narrow, wide)) return;
    std::wstring decoded;
    LocaleCodec().AppendWide(UpToNul(narrow), LocaleCodec::Undecodable::Escape, &decoded);
    *wide = std::move(decoded);
  });
}

}  // namespace tavrin::platform
