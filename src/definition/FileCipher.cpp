#include "definition/FileCipher.h"

#include "platform/StreamCipher.h"

namespace tavrin {

bool EncryptBuffer(unsigned char* block, std::uint32_t n) {
  return block != nullptr && n != 0 && platform::EncryptInPlace(block, n);
}

bool DecryptBuffer(unsigned char* block, std::uint32_t n) {
  return block != nullptr && n != 0 && platform::DecryptInPlace(block, n);
}

}  // namespace tavrin
