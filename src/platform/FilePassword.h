#pragma once

namespace tavrin::platform {

/// The password of every enciphered file. No terminating NUL: exactly these bytes are hashed.
inline constexpr unsigned char kFilePassword[] = {'t', 'a', 'l', 'v', 'e', 'k', '7', 'R'};

}  // namespace tavrin::platform
