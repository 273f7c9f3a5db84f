#include "check/CopyToRead.h"

#include <cerrno>
#include <filesystem>
#include <system_error>

#include "Failure.h"
#include "definition/TemporaryPath.h"
#include "files/FilePath.h"
#include "files/TemporaryFile.h"

namespace tavrin::tool {

namespace {

/// The one that the library uses.
std::filesystem::path TemporaryDirectory() {
  return ToPath(MakeTemporaryPath("")).parent_path();
}

}  // namespace

CopyToRead::CopyToRead(const Bytes& plain)
    : PlainCopy(ToArgument(UnusedPathBeside(TemporaryDirectory() / "definition.ini"))) {
  if (Write(plain.data(), static_cast<std::uint32_t>(plain.size())) && WroteAll()) return;
  throw Failure("temporary directory " + ToArgument(TemporaryDirectory()),
                "takes no file: " + std::generic_category().message(errno),
                "check its permissions and free space, or name another one in TMPDIR, on Windows "
                "in TMP");
}

}  // namespace tavrin::tool
