#include "platform/Files.h"

#include <filesystem>
#include <system_error>

#include <io.h>
#include <share.h>
#include <sys/stat.h>

namespace tavrin::platform {

bool FileExists(const std::wstring& path) {
  std::error_code error;
  return std::filesystem::exists(std::filesystem::path(path), error);
}

std::FILE* OpenRegularFile(const std::string& path, std::uint64_t* size) {
  std::FILE* file = _fsopen(path.c_str(), "rb", _SH_DENYNO);
  if (file == nullptr) return nullptr;
  struct _stat64 status = {};
  if (_fstat64(_fileno(file), &status) != 0 || (status.st_mode & _S_IFMT) != _S_IFREG) {
    std::fclose(file);
    return nullptr;
  }
  *size = static_cast<std::uint64_t>(status.st_size);
  return file;
}

std::FILE* CreateOwnerOnlyFile(const std::string& path) {
  return _fsopen(path.c_str(), "wb", _SH_DENYNO);
}

}  // namespace tavrin::platform
