#include "platform/Files.h"

#include <sys/stat.h>

#include "platform/TextEncoding.h"
#include "platform/portable/Descriptor.h"
#include "platform/portable/OwnerOnlyFile.h"

namespace tavrin::platform {

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

}  // namespace tavrin::platform
