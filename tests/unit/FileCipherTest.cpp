#include <algorithm>
#include <vector>

#include <gtest/gtest.h>

#include "definition/FileCipher.h"

namespace tavrin {
namespace {

using Bytes = std::vector<unsigned char>;

// Recorded from the CryptoAPI: the start and the end of 70,000 bytes.
const Bytes kFirst = {0x71, 0xdf, 0x95, 0x84, 0x04, 0x19, 0x8b, 0xe5, 0x4b, 0x20, 0xbf,
                      0x60, 0x42, 0xf2, 0xf4, 0xa9, 0xb6, 0x50, 0x72, 0xb3, 0x5a, 0x39,
                      0x5b, 0x76, 0x78, 0x09, 0xb9, 0x89, 0xed, 0xa6, 0x06, 0xe3};
const Bytes kLast = {0x91, 0x72, 0x5b, 0x06, 0xda, 0x01, 0x02, 0xce};

TEST(FileCipher, EveryLengthMeetsTheKeystreamAndNothingBeyond) {
  Bytes keystream(70000);
  ASSERT_TRUE(EncryptBuffer(keystream.data(), 70000));
  EXPECT_EQ(Bytes(keystream.begin(), keystream.begin() + 32), kFirst);
  EXPECT_EQ(Bytes(keystream.end() - 8, keystream.end()), kLast);
  for (const auto& cipher : {EncryptBuffer, DecryptBuffer}) {
    for (const std::uint32_t n : {1u, 2u, 255u, 256u, 257u, 69999u}) {
      Bytes block(n + 1, 0x0F);
      ASSERT_TRUE(cipher(block.data(), n));
      Bytes expected(n + 1, 0x0F);
      std::transform(keystream.begin(), keystream.begin() + n, expected.begin(),
                     [](unsigned char byte) { return static_cast<unsigned char>(byte ^ 0x0F); });
      EXPECT_EQ(block, expected) << n;
    }
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
