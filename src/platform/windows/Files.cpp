#include "platform/Files.h"

#include <filesystem>
#include <memory>
#include <system_error>

#include <io.h>
#include <share.h>
#include <sys/stat.h>

namespace tavrin::platform {

namespace {

struct Closer {
  void operator()(std::FILE* file) const { std::fclose(file); }
};

using File = std::unique_ptr<std::FILE, Closer>;

File OpenRegularFile(const std::string& path, std::uint64_t* size) {
  File file(_fsopen(path.c_str(), "rb", _SH_DENYNO));
  if (file == nullptr) return nullptr;
  struct _stat64 status = {};
  if (_fstat64(_fileno(file.get()), &status) != 0 || (status.st_mode & _S_IFMT) != _S_IFREG)
    return nullptr;
  *size = static_cast<std::uint64_t>(status.st_size);
  return file;
}

}  // namespace

bool FileExists(const std::wstring& path) {
  std::error_code error;
  return std::filesystem::exists(std::filesystem::path(path), error);
}

bool ReadRegularFile(const std::string& path,
                     const std::function<unsigned char*(std::uint32_t)>& blockFor) {
  std::uint64_t size = 0;
  const File file = OpenRegularFile(path, &size);
  const auto n = static_cast<std::uint32_t>(size);
  unsigned char* block = file != nullptr ? blockFor(n) : nullptr;
  if (block != nullptr) static_cast<void>(std::fread(block, 1, n, file.get()));
  return block != nullptr;
}

std::FILE* CreateOwnerOnlyFile(const std::string& path) {
  return _fsopen(path.c_str(), "wb", _SH_DENYNO);
}

}  // namespace tavrin::platform
