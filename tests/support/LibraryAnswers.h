#pragma once

#include <string>

namespace tavrin::test {

/// Asks the library everything that its exports answer, indices out of range and null pointers
/// included, and writes the modeling conditions file. Neither loads nor releases a definition.
///
/// @return one line an answer: the export, its arguments, its result, what it handed out (texts as
///         hexadecimal bytes, doubles as their bits) and, where it failed, the last-error code.
std::string AllAnswers(const std::string& conditionsPath);

}  // namespace tavrin::test
