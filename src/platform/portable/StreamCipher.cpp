#include "platform/StreamCipher.h"

#include "platform/FilePassword.h"
#include "platform/portable/Rc4.h"
#include "platform/portable/Sha1.h"

namespace tavrin::platform {

namespace {

constexpr Rc4Key DeriveFileKey() {
  const Sha1State digest = Sha1(kFilePassword);
  Rc4Key key = {};
  for (std::size_t i = 0; i < key.size(); ++i)
    key[i] = static_cast<unsigned char>(digest[i / 4] >> (24 - 8 * (i % 4)));
  return key;
}

// The key never changes, so the compiler derives it.
constexpr Rc4State kStart = ScheduleRc4(DeriveFileKey());

}  // namespace

bool EncryptInPlace(unsigned char* block, std::uint32_t n) {
  ApplyRc4(kStart, block, n);
  return true;
}

bool DecryptInPlace(unsigned char* block, std::uint32_t n) {
  return EncryptInPlace(block, n);
}

}  // namespace tavrin::platform
