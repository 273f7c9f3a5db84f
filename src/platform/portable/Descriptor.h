#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>
#include <utility>

#include <sys/types.h>

namespace tavrin::platform {

/// A file descriptor, closed at the end of its scope.
class Descriptor {
 public:
  /// None.
  Descriptor() = default;
  /// Opens path, none where that fails.
  Descriptor(const std::string& path, int flags, mode_t mode = 0);
  ~Descriptor();
  Descriptor(Descriptor&& other) noexcept : value_(other.Release()) {}
  Descriptor& operator=(Descriptor&& other) noexcept {
    std::swap(value_, other.value_);
    return *this;
  }

  bool IsOpen() const { return value_ >= 0; }
  int Get() const { return value_; }
  int Release() { return std::exchange(value_, -1); }
  bool Close();

 private:
  int value_ = -1;
};

// What fails leaves its reason in errno.

/// Opens the regular file at path for reading; what else lies there is EINVAL. Waits for a process
/// with a lease on the file, as file servers have them, to give it up, but not for pipes or
/// devices.
Descriptor OpenRegularFile(const std::string& path, std::uint64_t* size);

/// Reads n bytes, fewer where the file ends.
///
/// @param length receives the number of bytes read, also when an error ended the reading.
bool ReadUpTo(const Descriptor& file, void* block, std::size_t n, std::size_t* length);

/// Writes all of bytes, from offset on.
bool WriteAt(const Descriptor& file, std::string_view bytes, std::size_t offset);

}  // namespace tavrin::platform
