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

bool IsRegularFile(const std::string& path) {
  struct stat status = {};
  return stat(path.c_str(), &status) == 0 && S_ISREG(status.st_mode);
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
