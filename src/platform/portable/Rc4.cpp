#include "platform/portable/Rc4.h"

#include <cstdint>
#include <utility>

namespace tavrin::platform {

namespace {

using State = std::array<std::uint32_t, 256>;

State ScheduleKey(const Rc4Key& key) {
  State s;
  for (std::size_t i = 0; i < s.size(); ++i)
    s[i] = static_cast<std::uint32_t>(i);
  std::size_t j = 0;
  for (std::size_t i = 0; i < s.size(); ++i) {
    j = (j + s[i] + key[i % key.size()]) % s.size();
    std::swap(s[i], s[j]);
  }
  return s;
}

}  // namespace

void ApplyRc4(const Rc4Key& key, unsigned char* block, std::size_t n) {
  State s = ScheduleKey(key);
  std::uint32_t i = 1;
  std::uint32_t j = 0;
  std::uint32_t a = s[i];
  const auto next = [&] {
    // The next step's cell is read before this one's writes, for which it would have to wait.
    const std::uint32_t following = (i + 1) % s.size();
    const std::uint32_t unswapped = s[following];
    j = (j + a) % s.size();
    const std::uint32_t b = s[j];
    s[i] = b;
    s[j] = a;
    const auto byte = static_cast<unsigned char>(s[(a + b) % s.size()]);
    if (following != j) a = unswapped;
    i = following;
    return byte;
  };
  // Pieces of keystream keep the bytes of block, which may alias anything, out of the steps.
  std::array<unsigned char, 16> stream;
  for (; n >= stream.size(); n -= stream.size()) {
    for (unsigned char& byte : stream)
      byte = next();
    for (const unsigned char byte : stream)
      *block++ ^= byte;
  }
  for (; n != 0; --n)
    *block++ ^= next();
}

}  // namespace tavrin::platform
