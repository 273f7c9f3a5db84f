#pragma once

#include <string>

namespace tavrin {

/// Converts wide text, up to its first NUL, to the user's default encoding. Text with a character
/// that the encoding lacks gives the empty string, which is no failure.
///
/// @return false, narrow untouched, when memory is exhausted.
bool ToNarrow(const std::wstring& wide, std::string* narrow);

/// Converts narrow text in the user's default encoding, up to its first NUL, to wide text.
///
/// @return false, wide untouched, when memory is exhausted.
bool ToWide(const std::string& narrow, std::wstring* wide);

/// The same by value; empty where the conversion fails.
std::string NarrowCopy(const std::wstring& wide);
std::wstring WideCopy(const std::string& narrow);

}  // namespace tavrin
