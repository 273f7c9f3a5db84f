#pragma once

#include <cstdint>

namespace tavrin {

/// Enciphers the n bytes of block in place, as definition files and modeling conditions files are:
/// RC4 under the key of the files' fixed password, from the first byte of the keystream. Nothing is
/// added; doing it twice restores the block.
///
/// @return false when block is null or n is 0 (nothing is touched), or when the platform refuses;
///         the block then holds whatever the platform left in it.
bool EncryptBuffer(unsigned char* block, std::uint32_t n);

/// Deciphers the n bytes of block in place; arguments and result are those of EncryptBuffer.
bool DecryptBuffer(unsigned char* block, std::uint32_t n);

}  // namespace tavrin
