#pragma once

#include <algorithm>
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
    std::transform(asked.begin(), asked.end(), text, ToChar);
    view_ = {text, asked.size()};
  }
  AskedName(const AskedName&) = delete;
  AskedName& operator=(const AskedName&) = delete;

  std::basic_string_view<Char> View() const { return view_; }

 private:
  /// What is not in ASCII becomes what no text of chars has either.
  static Char ToChar(wchar_t c) {
    constexpr std::uint32_t kBeyondAscii = 0x80;
    return static_cast<Char>(sizeof(Char) > 1 ? c : std::min<std::uint32_t>(c, kBeyondAscii));
  }

  Char short_[48];
  std::basic_string<Char> long_;
  std::basic_string_view<Char> view_;  ///< of one of the two
};

}  // namespace tavrin::platform
