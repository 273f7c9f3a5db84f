#include "facts/LoadFailure.h"

#include <filesystem>
#include <system_error>

#include "definition/TemporaryPath.h"
#include "files/FilePath.h"

namespace tavrin::tool {

namespace {

/// A load on Windows waits ten seconds while another process has the plain copy, by a clock that
/// may be a little ahead.
constexpr std::chrono::milliseconds kLongestWait(9500);

}  // namespace

Failure ExplainRefusal(const std::string& file, Container container) {
  const bool isPlain = container == Container::Plain;
  return {file,
          std::string("has no Version in a section [printer]") +
              (isPlain ? "" : " when it is deciphered"),
          "tavrin check tells what the library makes of it", ExitStatus::Errors};
}

Failure ExplainLoadFailure(const std::string& file, std::chrono::milliseconds taken) {
  if (taken >= kLongestWait) {
    return {file, "another process has been loading a definition of this name for ten seconds",
            "end that process, it may stand in a debugger"};
  }
  const std::string copy = MakeTemporaryPath(file);
  std::error_code error;
  if (std::filesystem::exists(std::filesystem::symlink_status(ToPath(copy), error))) {
    return {copy, "lies in the place of the definition's plain copy and cannot be replaced",
            "remove it, or name a temporary directory of your own in TMPDIR, on Windows in TMP"};
  }
  return {copy, "could not be created as the definition's plain copy",
          "try again, or give the definition a shorter name"};
}

}  // namespace tavrin::tool
