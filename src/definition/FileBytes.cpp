#include "definition/FileBytes.h"

#include <fstream>
#include <memory>

#include "platform/Files.h"

namespace tavrin {

namespace {

struct Closer {
  void operator()(std::FILE* file) const { std::fclose(file); }
};

using File = std::unique_ptr<std::FILE, Closer>;

/// One transfer moves all there is, so that a buffer in between would only cost.
void TransferDirectly(const File& file) {
  std::setvbuf(file.get(), nullptr, _IONBF, 0);
}

}  // namespace

std::uint32_t FileSizeOf(const std::string& path) {
  std::uint64_t size = 0;
  const File file(platform::OpenRegularFile(path, &size));
  return file == nullptr ? 0 : static_cast<std::uint32_t>(size);
}

bool ReadFileBytes(const std::string& path, unsigned char* block, std::uint32_t n) {
  if (block == nullptr || n == 0) return false;
  std::uint64_t size = 0;
  const File file(platform::OpenRegularFile(path, &size));
  if (file == nullptr) return false;
  TransferDirectly(file);
  static_cast<void>(std::fread(block, 1, n, file.get()));
  return true;
}

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

bool WriteOwnerOnlyFileBytes(const std::string& path, const unsigned char* block, std::uint32_t n) {
  if (block == nullptr || n == 0) return false;
  const File file(CreateOwnerOnlyFile(path));
  if (file == nullptr) return false;
  TransferDirectly(file);
  std::fwrite(block, 1, n, file.get());
  return true;
}

}  // namespace tavrin
