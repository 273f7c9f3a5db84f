#pragma once

#include <cstdint>
#include <string_view>

namespace tavrin::platform {

/// Every encoding that a locale can name has ASCII in its place, so plain names and numbers, nearly
/// all there is, need no codec.
///
/// Looks at every character, as that is quicker than stopping at the first that decides.
template <typename Unit>
bool IsAscii(std::basic_string_view<Unit> text) {
  std::uint32_t bits = 0;
  for (const Unit c : text)
    bits |= static_cast<std::uint32_t>(c);
  return bits < 0x80;
}

}  // namespace tavrin::platform
