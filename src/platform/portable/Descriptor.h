#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>
#include <utility>

#include <fcntl.h>
#include <unistd.h>

namespace tavrin::platform {

/// With these a pipe or device behind a path is seen without waiting for it.
constexpr int kOpenFlags = O_NONBLOCK | O_NOCTTY | O_CLOEXEC;

/// A file descriptor, closed at the end of its scope; negative when a file could not be opened.
class Descriptor {
 public:
  explicit Descriptor(int value) : value_(value) {}
  ~Descriptor() {
    if (value_ >= 0) close(value_);
  }
  Descriptor(Descriptor&& other) noexcept : value_(other.Release()) {}
  Descriptor& operator=(Descriptor&&) = delete;

  int Get() const { return value_; }
  bool IsOpen() const { return value_ >= 0; }
  int Release() { return std::exchange(value_, -1); }
  bool Close() { return close(Release()) == 0; }

 private:
  int value_;
};

// What fails leaves its reason in errno.

/// Opens the regular file at path for reading; what else lies there is EINVAL.
Descriptor OpenRegularFile(const std::string& path, std::uint64_t* size);

/// Reads n bytes, fewer where the file ends.
///
/// @param length receives the number of bytes read, also when an error ended the reading.
bool ReadUpTo(const Descriptor& file, void* block, std::size_t n, std::size_t* length);

bool WriteAt(const Descriptor& file, std::string_view bytes, std::size_t offset);

}  // namespace tavrin::platform
