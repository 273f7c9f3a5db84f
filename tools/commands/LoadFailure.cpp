#include "commands/LoadFailure.h"

#include <algorithm>
#include <filesystem>
#include <system_error>

#include "check/Reading.h"
#include "definition/FileCipher.h"
#include "definition/TemporaryPath.h"
#include "files/FilePath.h"
#include "files/FileTransfer.h"

namespace tavrin::tool {

namespace {

/// A load on Windows waits ten seconds while another process has the plain copy, by a clock that
/// may be a little ahead.
constexpr std::chrono::milliseconds kLongestWait(9500);

bool IsText(unsigned char byte) {
  return (byte >= ' ' && byte < 0x7F) || (byte >= '\t' && byte <= '\r');
}

/// Enciphered bytes are not text for long.
bool IsPlainIni(const Bytes& bytes) {
  const std::size_t length = std::min<std::size_t>(bytes.size(), 16);
  return std::count_if(bytes.begin(), bytes.begin() + static_cast<std::ptrdiff_t>(length),
                       IsText) == static_cast<std::ptrdiff_t>(length) ||
         Reading(bytes).loads;
}

/// Whether the definition loads from a plain copy of another name.
bool LoadsElsewhere(Bytes bytes) {
  return DecryptBuffer(bytes.data(), static_cast<std::uint32_t>(bytes.size())) &&
         Reading(bytes).loads;
}

}  // namespace

Failure ExplainLoadFailure(const std::string& file, std::chrono::milliseconds taken) {
  const Bytes bytes = ReadFile(file);
  if (IsPlainIni(bytes)) {
    return {file, "looks like a plain INI file, not a printer definition",
            "make a definition of it with tavrin encipher", ExitStatus::Errors};
  }
  if (!LoadsElsewhere(bytes)) {
    return {file, "has no Version in a section [printer] when it is deciphered",
            "tavrin check tells what the library makes of it", ExitStatus::Errors};
  }
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
