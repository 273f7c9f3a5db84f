#pragma once

#include <cstdint>
#include <string>

namespace tavrin {

/// The integer in decimal, filled up with zeros on the left to at least three characters. The zeros
/// stand before a sign: -5 gives "0-5".
std::string FormatThreeDigits(std::int32_t value);

/// Stores the last three characters of FormatThreeDigits. What does not fit is cut: 1234 gives
/// "234". Always true.
bool FormatLastThreeDigits(std::int32_t value, std::string* text);

/// Hands text out as a new NUL-terminated array for the host's TavrinRelease().
///
/// @param array receives the array.
/// @param size receives the length of text plus one.
/// @return false, both outputs untouched, when text is empty or array is null.
bool CopyToByteArray(const std::string& text, char** array, std::int32_t* size);

}  // namespace tavrin
