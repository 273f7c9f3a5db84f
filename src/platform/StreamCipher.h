#pragma once

#include <cstdint>

namespace tavrin::platform {

/// Enciphers n bytes in place with RC4 under a 128-bit key: the first 16 bytes of the file
/// password's SHA-1 digest, no salt. Each call starts at the first byte of the keystream.
///
/// REQUIRES: block is not null and n is not 0.
///
/// @return false when the platform cannot derive the key or refuses the cipher; the block then
///         holds whatever the platform left in it.
bool EncryptInPlace(unsigned char* block, std::uint32_t n);

/// The reverse of EncryptInPlace, which for a stream cipher is the same transformation.
bool DecryptInPlace(unsigned char* block, std::uint32_t n);

}  // namespace tavrin::platform
