#include "platform/Files.h"

#include <cerrno>
#include <filesystem>
#include <system_error>

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include "platform/TextEncoding.h"

namespace tavrin::platform {

bool FileExists(const std::wstring& path) {
  std::string narrow;
  std::error_code error;
  return ToNarrow(path, &narrow) && std::filesystem::exists(narrow, error);
}

bool IsRegularFile(const std::string& path) {
  std::error_code error;
  return std::filesystem::is_regular_file(path, error);
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
