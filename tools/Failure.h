#pragma once

#include <stdexcept>
#include <string>

#include "TextForms.h"

namespace tavrin::tool {

/// Ends a command. Its text is the one line that the user sees: what it is about, why it failed,
/// and what to do about it.
class Failure : public std::runtime_error {
 public:
  Failure(const std::string& file, const std::string& reason, const std::string& remedy)
      : std::runtime_error((file.empty() ? "\"\"" : Printable(file)) + ": " + reason + " (" +
                           remedy + ")") {}
};

}  // namespace tavrin::tool
