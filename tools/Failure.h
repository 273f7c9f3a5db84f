#pragma once

#include <algorithm>
#include <stdexcept>
#include <string>

namespace tavrin::tool {

/// Ends a command. Its text is the one line that the user sees: what it is about, why it failed,
/// and what to do about it.
class Failure : public std::runtime_error {
 public:
  Failure(const std::string& file, const std::string& reason, const std::string& remedy)
      : std::runtime_error((file.empty() ? "\"\"" : OneLine(file)) + ": " + reason + " (" + remedy +
                           ")") {}

 private:
  /// A file name may hold a line end.
  static std::string OneLine(std::string text) {
    std::replace_if(
        text.begin(), text.end(), [](unsigned char c) { return c < 0x20 || c == 0x7F; }, '?');
    return text;
  }
};

}  // namespace tavrin::tool
