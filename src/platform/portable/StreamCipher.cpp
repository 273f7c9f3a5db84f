#include "platform/StreamCipher.h"

#include <algorithm>

#include "platform/portable/Rc4.h"
#include "platform/portable/Sha1.h"

namespace tavrin::platform {

namespace {

Rc4Key DeriveFileKey(const unsigned char* password, std::uint32_t passwordSize) {
  const auto digest = Sha1({reinterpret_cast<const char*>(password), passwordSize});
  Rc4Key key{};
  std::copy_n(digest.begin(), key.size(), key.begin());
  return key;
}

}  // namespace

bool EncryptInPlace(const unsigned char* password, std::uint32_t passwordSize, unsigned char* block,
                    std::uint32_t n) {
  ApplyRc4(DeriveFileKey(password, passwordSize), block, n);
  return true;
}

bool DecryptInPlace(const unsigned char* password, std::uint32_t passwordSize, unsigned char* block,
                    std::uint32_t n) {
  return EncryptInPlace(password, passwordSize, block, n);
}

}  // namespace tavrin::platform
