#pragma once

#include <cstdint>
#include <limits>

namespace tavrin {

/// The value truncated toward zero; INT32_MIN for NaN and for what 32 bits cannot hold, which is
/// the answer of the x86 conversion instruction.
inline std::int32_t TruncateToInt32(double value) {
  const bool fits = value > -2147483649.0 && value < 2147483648.0;  // false for NaN
  return fits ? static_cast<std::int32_t>(value) : std::numeric_limits<std::int32_t>::min();
}

/// The value truncated toward zero to 64 bits, modulo 2^32; 0 for NaN and for what 64 bits cannot
/// hold.
inline std::uint32_t TruncateToUint32(double value) {
  const bool fits = value >= -9223372036854775808.0 && value < 9223372036854775808.0;
  return fits ? static_cast<std::uint32_t>(static_cast<std::int64_t>(value)) : 0;
}

/// The sum modulo 2^32.
inline std::int32_t WrappingAdd(std::int32_t a, std::int32_t b) {
  return static_cast<std::int32_t>(static_cast<std::uint32_t>(a) + static_cast<std::uint32_t>(b));
}

inline constexpr double kMicrometresPerMillimetre = 1000.0;

/// Millimetres as the definition file has them, in whole µm.
inline std::int32_t ToMicrometres(double millimetres) {
  return TruncateToInt32(millimetres * kMicrometresPerMillimetre);
}

}  // namespace tavrin
