#include "platform/portable/Rc4.h"

namespace tavrin::platform {

void ApplyRc4(const Rc4State& start, unsigned char* block, std::size_t n) {
  Rc4State s = start;
  std::uint32_t i = 1;
  std::uint32_t a = s[i];
  std::uint32_t j = a;
  const auto next = [&] {
    // The next step's cell is read before this one's writes, for which it would have to wait, and
    // the next j is there for both cases before it is known whether this one wrote that cell.
    const std::uint32_t following = (i + 1) % s.size();
    const std::uint32_t unswapped = s[following];
    const std::uint32_t b = s[j];
    s[i] = b;
    s[j] = a;
    const auto byte = static_cast<unsigned char>(s[(a + b) % s.size()]);
    const std::uint32_t ifWritten = (j + a) % s.size();
    const std::uint32_t ifNot = (j + unswapped) % s.size();
    const bool isWritten = following == j;
    a = isWritten ? a : unswapped;
    j = isWritten ? ifWritten : ifNot;
    i = following;
    return byte;
  };
  // Eight bytes at a time in a register, which compilers lay over the block in one go.
  for (; n >= 8; n -= 8) {
    std::uint64_t stream = 0;
    for (unsigned shift = 0; shift < 64; shift += 8)
      stream |= std::uint64_t{next()} << shift;
    for (unsigned shift = 0; shift < 64; shift += 8)
      *block++ ^= static_cast<unsigned char>(stream >> shift);
  }
  for (; n != 0; --n)
    *block++ ^= next();
}

}  // namespace tavrin::platform
