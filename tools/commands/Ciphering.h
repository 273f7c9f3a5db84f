#pragma once

#include <cstdint>
#include <string>

#include "files/FileTransfer.h"

namespace tavrin::tool {

/// The file's bytes as the cipher of one direction makes them.
Bytes Ciphered(const std::string& file, Bytes bytes, bool (*cipher)(unsigned char*, std::uint32_t));

}  // namespace tavrin::tool
