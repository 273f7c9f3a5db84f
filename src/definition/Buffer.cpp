#include "definition/Buffer.h"

#include <new>

namespace tavrin {

bool Buffer::Release() {
  data_.reset();
  size_ = 0;
  return true;
}

bool Buffer::IsEmpty() const {
  return data_ == nullptr || size_ == 0;
}

bool Buffer::Allocate(std::uint32_t n) {
  Release();
  if (n == 0) return false;
  data_.reset(new (std::nothrow) unsigned char[n]());
  if (data_ == nullptr) return false;
  size_ = n;
  return true;
}

}  // namespace tavrin
