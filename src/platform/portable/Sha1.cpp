#include "platform/portable/Sha1.h"

#include <cstdint>
#include <string>

namespace tavrin::platform {

namespace {

constexpr std::size_t kBlockBytes = 64;

using State = std::array<std::uint32_t, 5>;

std::uint32_t RotateLeft(std::uint32_t value, unsigned bits) {
  return value << bits | value >> (32 - bits);
}

/// The message, a 1 bit, zeros up to the last eight bytes of a block, the length in bits.
std::string Pad(std::string_view message) {
  std::string padded(message);
  padded += '\x80';
  while (padded.size() % kBlockBytes != kBlockBytes - 8)
    padded += '\0';
  const std::uint64_t bits = std::uint64_t{message.size()} * 8;
  for (int shift = 56; shift >= 0; shift -= 8)
    padded += static_cast<char>(bits >> shift & 0xFF);
  return padded;
}

std::array<std::uint32_t, 80> ExpandBlock(const char* block) {
  std::array<std::uint32_t, 80> words{};
  for (std::size_t i = 0; i < kBlockBytes; ++i) {
    words[i / 4] = words[i / 4] << 8 | static_cast<unsigned char>(block[i]);
  }
  for (std::size_t i = 16; i < words.size(); ++i) {
    words[i] = RotateLeft(words[i - 3] ^ words[i - 8] ^ words[i - 14] ^ words[i - 16], 1);
  }
  return words;
}

/// The function and constant of one of the four groups of twenty rounds.
std::uint32_t Mix(std::size_t round, std::uint32_t b, std::uint32_t c, std::uint32_t d) {
  if (round < 20) return ((b & c) | (~b & d)) + 0x5A827999u;
  if (round < 40) return (b ^ c ^ d) + 0x6ED9EBA1u;
  if (round < 60) return ((b & c) | (b & d) | (c & d)) + 0x8F1BBCDCu;
  return (b ^ c ^ d) + 0xCA62C1D6u;
}

void AddBlock(const char* block, State* state) {
  const auto words = ExpandBlock(block);
  auto [a, b, c, d, e] = *state;
  for (std::size_t round = 0; round < words.size(); ++round) {
    const std::uint32_t next = RotateLeft(a, 5) + Mix(round, b, c, d) + e + words[round];
    e = d;
    d = c;
    c = RotateLeft(b, 30);
    b = a;
    a = next;
  }
  const State change = {a, b, c, d, e};
  for (std::size_t i = 0; i < change.size(); ++i)
    (*state)[i] += change[i];
}

}  // namespace

std::array<unsigned char, 20> Sha1(std::string_view message) {
  State state = {0x67452301u, 0xEFCDAB89u, 0x98BADCFEu, 0x10325476u, 0xC3D2E1F0u};
  const std::string padded = Pad(message);
  for (std::size_t at = 0; at < padded.size(); at += kBlockBytes)
    AddBlock(&padded[at], &state);

  std::array<unsigned char, 20> digest{};
  for (std::size_t i = 0; i < digest.size(); ++i) {
    digest[i] = static_cast<unsigned char>(state[i / 4] >> (24 - 8 * (i % 4)));
  }
  return digest;
}

}  // namespace tavrin::platform
