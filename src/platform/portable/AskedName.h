#pragma once

#include <cstddef>
#include <cstdint>
#include <iterator>
#include <string>
#include <string_view>

#include "platform/portable/ProfileText.h"

namespace tavrin::platform {

/// A section or key as the caller names it, in the characters of the text, without the spaces round
/// it.
template <typename Char>
class AskedName {
 public:
  explicit AskedName(const wchar_t* name) {
    const std::wstring_view asked = StripSpaces(name);
    Char* text = short_;
    if (asked.size() > std::size(short_)) {
      long_.resize(asked.size());
      text = long_.data();
    }
    std::uint32_t bits = 0;  // in one pass, which every read of a load makes twice
    for (std::size_t i = 0; i < asked.size(); ++i) {
      bits |= static_cast<std::uint32_t>(asked[i]);
      text[i] = static_cast<Char>(asked[i]);
    }
    // A text of chars is ASCII and has no other name.
    if (sizeof(Char) == 1 && bits >= 0x80) text[0] = static_cast<Char>(0x80);
    view_ = {text, asked.size()};
  }
  AskedName(const AskedName&) = delete;
  AskedName& operator=(const AskedName&) = delete;

  std::basic_string_view<Char> View() const { return view_; }

 private:
  Char short_[48];
  std::basic_string<Char> long_;
  std::basic_string_view<Char> view_;  ///< of one of the two
};

}  // namespace tavrin::platform
