#pragma once

namespace tavrin::tool {

/// What the exit status of every command says. Where several hold, the greatest counts.
enum class ExitStatus {
  NothingToReport,
  SomethingToLookAt,
  Errors,
  FileFailed,
  Usage,
};

/// The same for people.
inline constexpr char kExitStatuses[] =
    "Exit status:\n"
    "  0  nothing to report\n"
    "  1  something to look at: warnings, or in a comparison a difference\n"
    "  2  errors: a definition that does not load, fails a query or is not what was asked for\n"
    "  3  a file that cannot be read or written\n"
    "  4  a mistake in the command line";

}  // namespace tavrin::tool
