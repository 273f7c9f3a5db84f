#include "check/Utf8.h"

#include <cstddef>

namespace tavrin::tool {

bool IsUtf8(std::string_view bytes) {
  std::size_t tails = 0;  // bytes that the character has yet to get
  unsigned char lowest = 0x80;
  unsigned char highest = 0xBF;
  for (const char c : bytes) {
    const auto byte = static_cast<unsigned char>(c);
    if (tails > 0) {
      if (byte < lowest || byte > highest) return false;
      lowest = 0x80;
      highest = 0xBF;
      --tails;
    } else if (byte >= 0x80) {
      if (byte < 0xC2 || byte > 0xF4) return false;
      tails = byte < 0xE0 ? 1 : byte < 0xF0 ? 2 : 3;
      // Neither longer than need be, nor a surrogate, nor beyond Unicode.
      if (byte == 0xE0) lowest = 0xA0;
      if (byte == 0xED) highest = 0x9F;
      if (byte == 0xF0) lowest = 0x90;
      if (byte == 0xF4) highest = 0x8F;
    }
  }
  return tails == 0;
}

}  // namespace tavrin::tool
