#pragma once

#include <cstdint>
#include <cstdio>
#include <string>

namespace tavrin {

/// Writes the n bytes of block to the file at path, replacing one that is there.
///
/// @return false when block is null, n is 0 or the file cannot be opened. Errors after the opening
///         are not reported: success is judged by the opening alone.
bool WriteFileBytes(const std::string& path, const unsigned char* block, std::uint32_t n);

/// Creates the file at path for binary writing, in place of one that is there. Where the platform
/// has file modes, only the owner can read it, and a link at path is replaced, never followed.
///
/// @return the open file, which the caller closes; null when it could not be created.
std::FILE* CreateOwnerOnlyFile(const std::string& path);

}  // namespace tavrin
