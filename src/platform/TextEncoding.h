#pragma once

#include <string>

namespace tavrin::platform {

/// Converts wide text, up to its first NUL, to the user's default encoding. Text with a character
/// that the encoding lacks gives the empty string, which is no failure.
///
/// @return false when memory is exhausted; narrow is then untouched.
bool ToNarrow(const std::wstring& wide, std::string* narrow);

/// Converts narrow text in the user's default encoding, up to its first NUL, to wide text.
///
/// @return false when memory is exhausted; wide is then untouched.
bool ToWide(const std::string& narrow, std::wstring* wide);

}  // namespace tavrin::platform
