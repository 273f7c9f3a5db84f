#pragma once

#include <array>
#include <cstddef>
#include <cstdint>

namespace tavrin::platform {

// Calculated by the compiler: the one message that the library hashes is fixed.

using Sha1State = std::array<std::uint32_t, 5>;
using Sha1Words = std::array<std::uint32_t, 80>;

constexpr std::uint32_t RotateLeft(std::uint32_t value, unsigned bits) {
  return value << bits | value >> (32 - bits);
}

/// The message, a 1 bit, zeros and the length in bits, as the words of all rounds.
template <std::size_t N>
constexpr Sha1Words Sha1WordsOf(const unsigned char (&message)[N]) {
  static_assert(N < 56, "more than one block");
  Sha1Words words = {};
  for (std::size_t i = 0; i <= N; ++i)
    words[i / 4] |= std::uint32_t{i < N ? message[i] : 0x80u} << (24 - 8 * (i % 4));
  words[15] = 8 * N;
  for (std::size_t i = 16; i < words.size(); ++i)
    words[i] = RotateLeft(words[i - 3] ^ words[i - 8] ^ words[i - 14] ^ words[i - 16], 1);
  return words;
}

/// The function and constant of one of the four groups of twenty rounds.
constexpr std::uint32_t Sha1Mix(std::size_t round, std::uint32_t b, std::uint32_t c,
                                std::uint32_t d) {
  if (round < 20) return ((b & c) | (~b & d)) + 0x5A827999u;
  if (round < 40) return (b ^ c ^ d) + 0x6ED9EBA1u;
  if (round < 60) return ((b & c) | (b & d) | (c & d)) + 0x8F1BBCDCu;
  return (b ^ c ^ d) + 0xCA62C1D6u;
}

/// The SHA-1 digest of a message that fits one block, as its words.
template <std::size_t N>
constexpr Sha1State Sha1(const unsigned char (&message)[N]) {
  const Sha1State start = {0x67452301u, 0xEFCDAB89u, 0x98BADCFEu, 0x10325476u, 0xC3D2E1F0u};
  const Sha1Words words = Sha1WordsOf(message);
  auto [a, b, c, d, e] = start;
  for (std::size_t round = 0; round < words.size(); ++round) {
    const std::uint32_t next = RotateLeft(a, 5) + Sha1Mix(round, b, c, d) + e + words[round];
    e = d;
    d = c;
    c = RotateLeft(b, 30);
    b = a;
    a = next;
  }
  return {start[0] + a, start[1] + b, start[2] + c, start[3] + d, start[4] + e};
}

}  // namespace tavrin::platform
