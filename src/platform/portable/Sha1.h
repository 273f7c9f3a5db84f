#pragma once

#include <array>
#include <string_view>

namespace tavrin::platform {

/// The SHA-1 digest of message.
std::array<unsigned char, 20> Sha1(std::string_view message);

}  // namespace tavrin::platform
