#pragma once

#include <cstdint>

namespace tavrin::platform {

// Names are compared without regard to the case of ASCII letters, of no others.

/// A to Z as a to z.
template <typename Char>
Char Fold(Char c) {
  return c >= 'A' && c <= 'Z' ? static_cast<Char>(c + ('a' - 'A')) : c;
}

/// As many characters as fit, each in a lane of its own.
using Word = std::uint64_t;

/// Fold for each of them. Characters that fill their lane to the top, which no text holds, may come
/// out as anything.
template <typename Char>
Word FoldLanes(Word word) {
  constexpr unsigned kLaneBits = 8 * sizeof(Char);
  constexpr Word kEach = ~Word{0} / ((Word{1} << kLaneBits) - 1);
  constexpr Word kTop = kEach << (kLaneBits - 1);
  const Word fromA = word + (kTop - kEach * 'A');
  const Word beyondZ = word + (kTop - kEach * ('Z' + 1));
  return word | (fromA & ~beyondZ & kTop) >> (kLaneBits - 6);  // bit 5 makes a letter small
}

}  // namespace tavrin::platform
