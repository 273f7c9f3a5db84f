#pragma once

#include <array>
#include <cstddef>
#include <cstdint>

namespace tavrin::platform {

using Rc4Key = std::array<unsigned char, 16>;
using Rc4State = std::array<std::uint32_t, 256>;

/// The state that the keystream under key starts from.
constexpr Rc4State ScheduleRc4(const Rc4Key& key) {
  Rc4State s = {};
  for (std::size_t i = 0; i < s.size(); ++i)
    s[i] = static_cast<std::uint32_t>(i);
  std::size_t j = 0;
  for (std::size_t i = 0; i < s.size(); ++i) {
    const std::uint32_t a = s[i];
    j = (j + a + key[i % key.size()]) % s.size();
    s[i] = s[j];
    s[j] = a;
  }
  return s;
}

/// XORs the RC4 keystream, from its first byte, over the n bytes of block.
void ApplyRc4(const Rc4State& start, unsigned char* block, std::size_t n);

}  // namespace tavrin::platform
