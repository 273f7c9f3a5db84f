#include <numeric>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "definition/FileCipher.h"

namespace tavrin {
namespace {

using Bytes = std::vector<unsigned char>;

// Recorded from the CryptoAPI.
const Bytes kKeystream = {0x71, 0xdf, 0x95, 0x84, 0x04, 0x19, 0x8b, 0xe5, 0x4b, 0x20, 0xbf,
                          0x60, 0x42, 0xf2, 0xf4, 0xa9, 0xb6, 0x50, 0x72, 0xb3, 0x5a, 0x39,
                          0x5b, 0x76, 0x78, 0x09, 0xb9, 0x89, 0xed, 0xa6, 0x06, 0xe3};

TEST(FileCipher, ZerosEncipherToTheKeystream) {
  Bytes encrypted(kKeystream.size());
  ASSERT_TRUE(EncryptBuffer(encrypted.data(), static_cast<std::uint32_t>(encrypted.size())));
  EXPECT_EQ(encrypted, kKeystream);
  Bytes decrypted(kKeystream.size());
  ASSERT_TRUE(DecryptBuffer(decrypted.data(), static_cast<std::uint32_t>(decrypted.size())));
  EXPECT_EQ(decrypted, kKeystream);
}

TEST(FileCipher, DecipheringRestoresEveryLengthAndTouchesNothingBeyond) {
  for (const std::uint32_t n : {1u, 2u, 255u, 256u, 257u, 70000u}) {
    Bytes plain(n + 1);
    std::iota(plain.begin(), plain.end(), static_cast<unsigned char>(n));
    Bytes block = plain;
    ASSERT_TRUE(EncryptBuffer(block.data(), n));
    EXPECT_EQ(block[0], plain[0] ^ kKeystream[0]) << n;
    EXPECT_EQ(block[n], plain[n]) << n;
    ASSERT_TRUE(DecryptBuffer(block.data(), n));
    EXPECT_EQ(block, plain) << n;
  }
}

TEST(FileCipher, NothingToDoIsAFailure) {
  unsigned char byte = 'x';
  EXPECT_FALSE(EncryptBuffer(nullptr, 1));
  EXPECT_FALSE(DecryptBuffer(nullptr, 1));
  EXPECT_FALSE(EncryptBuffer(&byte, 0));
  EXPECT_FALSE(DecryptBuffer(&byte, 0));
  EXPECT_EQ(byte, 'x');
}

}  // namespace
}  // namespace tavrin
