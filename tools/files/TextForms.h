#pragma once

#include <string>

namespace tavrin::tool {

/// Narrow text in the process's code page with a '?' for each control character, so that a terminal
/// shows it and is not driven by it.
std::string Printable(const std::string& text);

/// Narrow text in the process's code page as UTF-8. What is no character in the code page comes out
/// as bytes that are no UTF-8 either.
std::string ToUtf8(const std::string& text);

}  // namespace tavrin::tool
