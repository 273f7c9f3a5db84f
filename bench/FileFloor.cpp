#include "bench/FileFloor.h"

#include <stdexcept>

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace tavrin::bench {

namespace {

void Require(bool succeeded) {
  if (!succeeded) throw std::runtime_error("a file operation failed");
}

}  // namespace

std::string ReadBare(const std::string& path) {
  const int file = open(path.c_str(), O_RDONLY);
  struct stat status = {};
  Require(file >= 0 && fstat(file, &status) == 0);
  std::string bytes(static_cast<std::size_t>(status.st_size), '\0');
  Require(read(file, bytes.data(), bytes.size()) == static_cast<ssize_t>(bytes.size()));
  close(file);
  return bytes;
}

void WriteBare(const std::string& path, std::string_view bytes) {
  const int file = open(path.c_str(), O_WRONLY | O_CREAT | O_TRUNC, 0600);
  Require(file >= 0 &&
          write(file, bytes.data(), bytes.size()) == static_cast<ssize_t>(bytes.size()));
  close(file);
}

}  // namespace tavrin::bench
