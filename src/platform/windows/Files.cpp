#include "platform/Files.h"

#include <filesystem>
#include <system_error>

#include <share.h>

#include "platform/TextEncoding.h"

namespace tavrin::platform {

bool FileExists(const std::wstring& path) {
  std::error_code error;
  return std::filesystem::exists(std::filesystem::path(path), error);
}

bool IsRegularFile(const std::string& path) {
  std::wstring wide;
  std::error_code error;
  return ToWide(path, &wide) &&
         std::filesystem::is_regular_file(std::filesystem::path(wide), error);
}

std::FILE* CreateOwnerOnlyFile(const std::string& path) {
  return _fsopen(path.c_str(), "wb", _SH_DENYNO);
}

}  // namespace tavrin::platform
