#pragma once

#include <array>
#include <cstddef>

namespace tavrin::platform {

using Rc4Key = std::array<unsigned char, 16>;

/// XORs the RC4 keystream under key, from its first byte, over the n bytes of block.
void ApplyRc4(const Rc4Key& key, unsigned char* block, std::size_t n);

}  // namespace tavrin::platform
