#pragma once

#include <string>

namespace tavrin::test {

/// Asks the library everything that its exports answer, indices out of range and null pointers
/// included. Neither loads nor releases a definition; arrays that are handed out are freed.
///
/// @return one line an answer: the export, its arguments, its result, what it handed out (texts as
///         hexadecimal bytes, doubles as they read back) and, where it failed, the last-error code:
///         ErrorInvalidArgument where it recorded none.
std::string AskEverything();

/// The same, and writes the modeling conditions file.
std::string AskEverythingAndWrite(const std::string& conditionsPath);

}  // namespace tavrin::test
