#pragma once

#include <string>

namespace tavrin {

/// The wide form of a narrow text, for the time of a call.
class WideText {
 public:
  /// An exhausted memory leaves as an exception, for it must not make a key look like a missing
  /// one.
  explicit WideText(const std::string& narrow);
  WideText(const WideText&) = delete;
  WideText& operator=(const WideText&) = delete;

  const wchar_t* c_str() const { return text_; }

 private:
  wchar_t short_[48];
  std::wstring long_;
  const wchar_t* text_;  ///< in one of the two
};

}  // namespace tavrin
