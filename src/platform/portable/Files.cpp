#include "platform/Files.h"

#include <cerrno>

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include "platform/TextEncoding.h"

namespace tavrin::platform {

bool FileExists(const std::wstring& path) {
  std::string narrow;
  struct stat status = {};
  return ToNarrow(path, &narrow) && stat(narrow.c_str(), &status) == 0;
}

std::FILE* OpenRegularFile(const std::string& path, std::uint64_t* size) {
  // Without O_NONBLOCK a pipe would hold the call until somebody writes to it.
  const int descriptor = open(path.c_str(), O_RDONLY | O_NONBLOCK | O_NOCTTY | O_CLOEXEC);
  if (descriptor < 0) return nullptr;
  struct stat status = {};
  const bool isRegular = fstat(descriptor, &status) == 0 && S_ISREG(status.st_mode);
  std::FILE* file = isRegular ? fdopen(descriptor, "rb") : nullptr;
  if (file == nullptr) {
    close(descriptor);
    return nullptr;
  }
  *size = static_cast<std::uint64_t>(status.st_size);
  return file;
}

std::FILE* CreateOwnerOnlyFile(const std::string& path) {
  const auto create = [&] {
    return open(path.c_str(), O_WRONLY | O_CREAT | O_EXCL | O_NOFOLLOW | O_CLOEXEC,
                S_IRUSR | S_IWUSR);
  };
  // Exclusively, so that an own file of wider permissions or a link is taken out of the way, not
  // written to; what cannot be removed makes the creation fail.
  int descriptor = create();
  if (descriptor < 0 && errno == EEXIST && unlink(path.c_str()) == 0) descriptor = create();
  if (descriptor < 0) return nullptr;
  std::FILE* file = fdopen(descriptor, "wb");
  if (file == nullptr) close(descriptor);
  return file;
}

}  // namespace tavrin::platform
