#include "definition/FileBytes.h"

#include <fstream>

#include "platform/Files.h"

namespace tavrin {

std::uint32_t FileSizeOf(const std::string& path) {
  if (!platform::IsRegularFile(path)) return 0;
  std::ifstream file(path, std::ios::in | std::ios::ate);
  const std::streamoff end = file.is_open() ? std::streamoff{file.tellg()} : 0;
  return end < 0 ? 0 : static_cast<std::uint32_t>(end);
}

bool ReadFileBytes(const std::string& path, unsigned char* block, std::uint32_t n) {
  if (block == nullptr || n == 0 || !platform::IsRegularFile(path)) return false;
  std::ifstream file(path, std::ios::in | std::ios::binary);
  if (!file.is_open()) return false;
  file.read(reinterpret_cast<char*>(block), n);
  return true;
}

bool WriteFileBytes(const std::string& path, const unsigned char* block, std::uint32_t n) {
  if (block == nullptr || n == 0) return false;
  std::ofstream file(path, std::ios::out | std::ios::trunc | std::ios::binary);
  if (!file.is_open()) return false;
  file.write(reinterpret_cast<const char*>(block), n);
  return true;
}

std::FILE* CreateOwnerOnlyFile(const std::string& path) {
  return platform::CreateOwnerOnlyFile(path);
}

bool WriteOwnerOnlyFileBytes(const std::string& path, const unsigned char* block, std::uint32_t n) {
  if (block == nullptr || n == 0) return false;
  std::FILE* file = CreateOwnerOnlyFile(path);
  if (file == nullptr) return false;
  std::setvbuf(file, nullptr, _IONBF, 0);  // one write takes it all
  std::fwrite(block, 1, n, file);
  std::fclose(file);
  return true;
}

}  // namespace tavrin
