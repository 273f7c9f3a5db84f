#pragma once

#include <exception>
#include <iostream>
#include <new>
#include <stdexcept>
#include <string>

#include "ExitStatus.h"
#include "files/TextForms.h"

namespace tavrin::tool {

/// Ends a command. Its text is the one line that the user sees: what it is about, why it failed,
/// and what to do about it.
class Failure : public std::runtime_error {
 public:
  Failure(const std::string& subject, const std::string& reason, const std::string& remedy,
          ExitStatus status = ExitStatus::FileFailed)
      : std::runtime_error((subject.empty() ? "\"\"" : Printable(subject)) + ": " + reason + " (" +
                           remedy + ")"),
        status_(status) {}

  ExitStatus Status() const { return status_; }

 private:
  ExitStatus status_;
};

/// Tells the user why a command, or its part that concerns one file, ended.
///
/// @return what that makes the exit status.
inline ExitStatus ReportFailure(const std::exception& error) {
  const bool isMemory = dynamic_cast<const std::bad_alloc*>(&error) != nullptr;
  std::cerr << "tavrin: "
            << (isMemory ? "not enough memory (the file is held in memory whole)" : error.what())
            << '\n';
  const auto* failure = dynamic_cast<const Failure*>(&error);
  return failure == nullptr ? ExitStatus::FileFailed : failure->Status();
}

}  // namespace tavrin::tool
