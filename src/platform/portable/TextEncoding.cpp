#include "platform/TextEncoding.h"

#include <string_view>
#include <utility>

#include "platform/portable/Ascii.h"
#include "platform/portable/LocaleCodec.h"

namespace tavrin::platform {

namespace {

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
    const std::wstring_view text = wide.c_str();
    if (IsAscii(text)) {
      narrow->clear();
      AppendAsIs(text, narrow);
      return;
    }
    std::string encoded;
    if (!LocaleCodec().AppendNarrow(text, &encoded)) encoded.clear();
    *narrow = std::move(encoded);
  });
}

bool ToWide(const std::string& narrow, std::wstring* wide) {
  return Succeeds([&] {
    const std::string_view text = narrow.c_str();
    if (IsAscii(text)) {
      wide->clear();
      AppendAsIs(text, wide);
      return;
    }
    std::wstring decoded;
    LocaleCodec().AppendWide(text, LocaleCodec::Undecodable::Escape, &decoded);
    *wide = std::move(decoded);
  });
}

}  // namespace tavrin::platform
