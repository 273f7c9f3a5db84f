#include "platform/portable/Descriptor.h"

#include <cerrno>

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace tavrin::platform {

Descriptor::Descriptor(const std::string& path, int flags, mode_t mode) {
  do {
    value_ = open(path.c_str(), flags | O_NOCTTY | O_CLOEXEC, mode);
  } while (value_ < 0 && errno == EINTR);
}

Descriptor::~Descriptor() {
  const int reason = errno;
  if (IsOpen()) Close();
  errno = reason;
}

bool Descriptor::Close() {
  return close(Release()) == 0;
}

Descriptor OpenRegularFile(const std::string& path, std::uint64_t* size) {
  Descriptor file(path, O_RDONLY | O_NONBLOCK);
  struct stat status = {};
  const bool isLeased = !file.IsOpen() && errno == EWOULDBLOCK;
  if (isLeased && stat(path.c_str(), &status) == 0 && S_ISREG(status.st_mode))
    file = Descriptor(path, O_RDONLY);
  if (!file.IsOpen() || fstat(file.Get(), &status) != 0) return {};
  if (!S_ISREG(status.st_mode)) {
    errno = EINVAL;
    return {};
  }
  *size = static_cast<std::uint64_t>(status.st_size);
  return file;
}

bool ReadUpTo(const Descriptor& file, void* block, std::size_t n, std::size_t* length) {
  for (*length = 0; *length < n;) {
    const ssize_t read = ::read(file.Get(), static_cast<char*>(block) + *length, n - *length);
    if (read < 0 && errno == EINTR) continue;
    if (read < 0) return false;
    if (read == 0) break;
    *length += static_cast<std::size_t>(read);
  }
  return true;
}

bool WriteAt(const Descriptor& file, std::string_view bytes, std::size_t offset) {
  while (!bytes.empty()) {
    const ssize_t n = pwrite(file.Get(), bytes.data(), bytes.size(), static_cast<off_t>(offset));
    if (n < 0 && errno == EINTR) continue;
    if (n <= 0) return false;
    bytes.remove_prefix(static_cast<std::size_t>(n));
    offset += static_cast<std::size_t>(n);
  }
  return true;
}

}  // namespace tavrin::platform
