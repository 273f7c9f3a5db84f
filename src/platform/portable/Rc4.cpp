#include "platform/portable/Rc4.h"

#include <cstdint>
#include <utility>

namespace tavrin::platform {

namespace {

constexpr std::size_t kStates = 256;

// Held in 32-bit cells: byte cells cost a third of the speed to partial-register stalls.
using Permutation = std::array<std::uint32_t, kStates>;

Permutation ScheduleKey(const Rc4Key& key) {
  Permutation s{};
  for (std::size_t i = 0; i < kStates; ++i)
    s[i] = static_cast<std::uint32_t>(i);
  std::size_t j = 0;
  for (std::size_t i = 0; i < kStates; ++i) {
    j = (j + s[i] + key[i % key.size()]) % kStates;
    std::swap(s[i], s[j]);
  }
  return s;
}

}  // namespace

void ApplyRc4(const Rc4Key& key, unsigned char* block, std::size_t n) {
  Permutation s = ScheduleKey(key);
  std::uint32_t i = 0;
  std::uint32_t j = 0;
  for (std::size_t at = 0; at < n; ++at) {
    i = (i + 1) % kStates;
    const std::uint32_t a = s[i];
    j = (j + a) % kStates;
    const std::uint32_t b = s[j];
    s[i] = b;
    s[j] = a;
    block[at] ^= static_cast<unsigned char>(s[(a + b) % kStates]);
  }
}

}  // namespace tavrin::platform
