#include "platform/Files.h"

#include <cerrno>

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include "platform/TextEncoding.h"
#include "platform/portable/Descriptor.h"

namespace tavrin::platform {

namespace {

/// Exclusively, so that an own file of wider permissions or a link is taken out of the way, not
/// written to; what cannot be removed makes the creation fail.
Descriptor CreateOwnerOnly(const std::string& path) {
  constexpr int kFlags = O_WRONLY | O_CREAT | O_EXCL | O_NOFOLLOW;
  constexpr mode_t kOwnersAlone = S_IRUSR | S_IWUSR;
  Descriptor file(path, kFlags, kOwnersAlone);
  if (!file.IsOpen() && errno == EEXIST && unlink(path.c_str()) == 0)
    return Descriptor(path, kFlags, kOwnersAlone);
  return file;
}

}  // namespace

bool FileExists(const std::wstring& path) {
  std::string narrow;
  struct stat status = {};
  return ToNarrow(path, &narrow) && stat(narrow.c_str(), &status) == 0;
}

bool GetRegularFileSize(const std::string& path, std::uint64_t* size) {
  return OpenRegularFile(path, size).IsOpen();
}

bool ReadRegularFile(const std::string& path, unsigned char* block, std::uint32_t n) {
  std::uint64_t size = 0;
  std::size_t length = 0;
  const Descriptor file = OpenRegularFile(path, &size);
  if (file.IsOpen()) ReadUpTo(file, block, n, &length);
  return file.IsOpen();
}

std::FILE* CreateOwnerOnlyFile(const std::string& path) {
  Descriptor file = CreateOwnerOnly(path);
  std::FILE* stream = file.IsOpen() ? fdopen(file.Get(), "wb") : nullptr;
  if (stream != nullptr) file.Release();
  return stream;
}

bool WriteOwnerOnlyFile(const std::string& path, const unsigned char* block, std::uint32_t n) {
  const Descriptor file = CreateOwnerOnly(path);
  if (file.IsOpen()) WriteAt(file, {reinterpret_cast<const char*>(block), n}, 0);
  return file.IsOpen();
}

}  // namespace tavrin::platform
