#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace tavrin {

/// Converts the decimal integer at the start of text: leading white space is skipped, text after
/// the number is ignored ("12abc" gives 12). Digits are ASCII's; white space in wide text is
/// Windows', so that no-break spaces are among it, in narrow text ASCII's.
///
/// @return false, value untouched, when there are no digits or 32 bits cannot hold the number.
bool ParseInt(std::string_view text, std::int32_t* value);
bool ParseInt(std::wstring_view text, std::int32_t* value);

/// Converts the number at the start of text ("1.5mm" gives 1.5), with the decimal point of the
/// process's numeric locale: a full stop unless the host changed it. A point beyond ASCII, as a few
/// locales have it, ends the number. Every NaN is the same one.
///
/// @return false, value untouched, when there is no number, or one that as a double is infinite,
///         or 0, though its digits are not: runtimes differ in what they say of those in between.
bool ParseDouble(std::string_view text, double* value);
bool ParseDouble(std::wstring_view text, double* value);

/// The integer in decimal, without padding.
std::string IntToString(std::int32_t value);

/// Cuts text at its commas. Fields are not trimmed; one between two commas may be empty, and a
/// comma at the end starts no further field.
///
/// @return whether there is any field.
bool Split(const std::string& text, std::vector<std::string>* fields);

}  // namespace tavrin
