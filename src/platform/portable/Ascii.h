#pragma once

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <string>
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

/// Appends text unit by unit: ASCII has the same numbers in every width.
template <typename From, typename To>
void AppendAsIs(std::basic_string_view<From> text, std::basic_string<To>* converted) {
  const std::size_t length = converted->size();
  converted->resize(length + text.size());
  std::copy(text.begin(), text.end(), converted->data() + length);
}

}  // namespace tavrin::platform
