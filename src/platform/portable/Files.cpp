#include "platform/Files.h"

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
  // Removing first takes an own file of wider permissions, or a link, out of the way; what cannot
  // be removed makes the exclusive creation fail.
  unlink(path.c_str());
  const int descriptor =
      open(path.c_str(), O_WRONLY | O_CREAT | O_EXCL | O_NOFOLLOW | O_CLOEXEC, S_IRUSR | S_IWUSR);
  if (descriptor < 0) return nullptr;
  std::FILE* file = fdopen(descriptor, "wb");
  if (file == nullptr) close(descriptor);
  return file;
}

}  // namespace tavrin::platform
