#include "platform/portable/OwnerOnlyFile.h"

#include <cerrno>

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace tavrin::platform {

namespace {

/// Other processes that create the same file are quicker now and then, never so often on end.
constexpr int kMostAttempts = 100;

bool IsOutOfTheWay(const std::string& path) {
  return unlink(path.c_str()) == 0 || errno == ENOENT;
}

}  // namespace

Descriptor CreateOwnerOnly(const std::string& path) {
  for (int attempt = 1;; ++attempt) {
    Descriptor file(path, O_RDWR | O_CREAT | O_EXCL | O_NOFOLLOW, S_IRUSR | S_IWUSR);
    if (file.IsOpen() || errno != EEXIST || attempt == kMostAttempts) return file;
    if (!IsOutOfTheWay(path)) return {};
  }
}

}  // namespace tavrin::platform
