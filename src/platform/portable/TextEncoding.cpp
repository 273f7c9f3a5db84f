#include "platform/TextEncoding.h"

#include <algorithm>

#include "platform/portable/LocaleCodec.h"

namespace tavrin::platform {

namespace {

template <typename Text>
Text UpToNul(const Text& text) {
  return text.substr(0, text.find(typename Text::value_type{}));
}

/// Every encoding that a locale can name has ASCII in its place, so plain names and numbers, which
/// are nearly all there is, need no codec.
template <typename Text>
bool IsAscii(const Text& text) {
  return std::all_of(text.begin(), text.end(), [](auto c) { return c >= 0 && c < 0x80; });
}

void Encode(const std::wstring& wide, std::string* narrow) {
  if (IsAscii(wide)) {
    narrow->resize(wide.size());
    std::transform(wide.begin(), wide.end(), narrow->begin(),
                   [](wchar_t c) { return static_cast<char>(c); });
  } else if (!LocaleCodec().AppendNarrow(wide, narrow)) {
    narrow->clear();
  }
}

void Decode(const std::string& narrow, std::wstring* wide) {
  if (IsAscii(narrow)) {
    wide->assign(narrow.begin(), narrow.end());
  } else {
    LocaleCodec().AppendWide(narrow, LocaleCodec::Undecodable::Escape, wide);
  }
}

template <typename From, typename To>
bool Convert(const From& from, To* to, void (*convert)(const From&, To*)) {
  try {
    To converted;
    convert(UpToNul(from), &converted);
    *to = std::move(converted);
    return true;
  } catch (...) {
    return false;
  }
}

}  // namespace

bool ToNarrow(const std::wstring& wide, std::string* narrow) {
  return Convert(wide, narrow, Encode);
}

bool ToWide(const std::string& narrow, std::wstring* wide) {
  return Convert(narrow, wide, Decode);
}

}  // namespace tavrin::platform
