#pragma once

#include <exception>
#include <iostream>
#include <new>
#include <stdexcept>
#include <string>

#include "files/TextForms.h"

namespace tavrin::tool {

/// Ends a command. Its text is the one line that the user sees: what it is about, why it failed,
/// and what to do about it.
class Failure : public std::runtime_error {
 public:
  Failure(const std::string& file, const std::string& reason, const std::string& remedy)
      : std::runtime_error((file.empty() ? "\"\"" : Printable(file)) + ": " + reason + " (" +
                           remedy + ")") {}
};

/// Tells the user why a command, or its part that concerns one file, ended.
inline void ReportFailure(const std::exception& error) {
  const bool isMemory = dynamic_cast<const std::bad_alloc*>(&error) != nullptr;
  std::cerr << "tavrin: "
            << (isMemory ? "not enough memory (the file is held in memory whole)" : error.what())
            << '\n';
}

}  // namespace tavrin::tool
