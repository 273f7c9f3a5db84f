#pragma once

#include <cstdint>
#include <memory>

namespace tavrin {

/// An owned block of bytes.
class Buffer {
 public:
  Buffer() = default;
  virtual ~Buffer() = default;
  Buffer(const Buffer&) = delete;
  Buffer& operator=(const Buffer&) = delete;

  /// Frees the block, if any. Always true.
  virtual bool Release();

  /// True when there is no block or its size is 0.
  virtual bool IsEmpty() const;

  /// Replaces the block by one of n zero bytes.
  ///
  /// @return false, the buffer empty, when n is 0 or there is no memory for the block.
  virtual bool Allocate(std::uint32_t n);

  unsigned char* Data() { return data_.get(); }
  const unsigned char* Data() const { return data_.get(); }
  std::uint32_t Size() const { return size_; }

 private:
  std::unique_ptr<unsigned char[]> data_;
  std::uint32_t size_ = 0;
};

}  // namespace tavrin
