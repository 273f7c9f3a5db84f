#include "definition/FileBytes.h"

#include <fstream>

#include "platform/Files.h"

namespace tavrin {

bool WriteFileBytes(const std::string& path, const unsigned char* block, std::uint32_t n) {
  if (block == nullptr || n == 0) return false;
  // A buffer of the stream's own is allocated once the file is truncated, too late to fail.
  char buffer[16];
  std::ofstream file;
  file.rdbuf()->pubsetbuf(buffer, sizeof buffer);
  file.open(path, std::ios::out | std::ios::trunc | std::ios::binary);
  if (!file.is_open()) return false;
  file.write(reinterpret_cast<const char*>(block), n);
  return true;
}

std::FILE* CreateOwnerOnlyFile(const std::string& path) {
  return platform::CreateOwnerOnlyFile(path);
}

}  // namespace tavrin
