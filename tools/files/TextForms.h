#pragma once

#include <cstddef>
#include <string>

namespace tavrin::tool {

// Texts are narrow, in the process's code page.

/// The text as a person can look at it: in UTF-8, or in ASCII where the terminal shows no UTF-8.
/// Its control characters, which would drive the terminal, and what is no character come out as
/// escapes like \x1B and \u202E, and in ASCII all else beyond it.
std::string Printable(const std::string& text);

/// The same, but in UTF-8 whatever it is for.
std::string EscapedUtf8(const std::string& text);

/// The text as UTF-8. What is no character in the code page comes out as bytes that are no UTF-8
/// either.
std::string ToUtf8(const std::string& text);

/// How many characters the text has; what is none counts as one a byte.
std::size_t CountCharacters(const std::string& text);

}  // namespace tavrin::tool
