#include "definition/FileCipher.h"

#include "platform/StreamCipher.h"

namespace tavrin {

namespace {

// No terminating NUL: exactly these bytes are hashed.
constexpr unsigned char kPassword[] = {'t', 'a', 'l', 'v', 'e', 'k', '7', 'R'};

}  // namespace

bool EncryptBuffer(unsigned char* block, std::uint32_t n) {
  return block != nullptr && n != 0 &&
         platform::EncryptInPlace(kPassword, sizeof kPassword, block, n);
}

bool DecryptBuffer(unsigned char* block, std::uint32_t n) {
  return block != nullptr && n != 0 &&
         platform::DecryptInPlace(kPassword, sizeof kPassword, block, n);
}

}  // namespace tavrin
