#pragma once

#include <cstdio>
#include <cstdlib>

namespace tavrin::fuzz {

/// Ends the run, with the input that led here reported, unless the property holds.
inline void Require(bool holds, const char* property) {
  if (holds) return;
  std::fprintf(stderr, "does not hold: %s\n", property);
  std::abort();
}

}  // namespace tavrin::fuzz
