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

bool ReadRegularFile(const std::string& path,
                     const std::function<unsigned char*(std::uint32_t)>& blockFor) {
  std::uint64_t size = 0;
  std::size_t length = 0;
  const Descriptor file = OpenRegularFile(path, &size);
  const auto n = static_cast<std::uint32_t>(size);
  unsigned char* block = file.IsOpen() ? blockFor(n) : nullptr;
  if (block != nullptr) ReadUpTo(file, block, n, &length);
  return block != nullptr;
}

std::FILE* CreateOwnerOnlyFile(const std::string& path) {
  Descriptor file = CreateOwnerOnly(path);
  std::FILE* stream = file.IsOpen() ? fdopen(file.Get(), "wb") : nullptr;
  if (stream != nullptr) file.Release();
  return stream;
}

}  // namespace tavrin::platform
