#pragma once

#include <cstdint>
#include <cstdio>
#include <functional>
#include <string>

namespace tavrin::platform {

/// True when path names an existing entry of the file system, of whatever kind.
bool FileExists(const std::wstring& path);

/// Reads the regular file at path, as many bytes as it has when it is opened. Directories, pipes
/// and devices, which a stream would open or wait for, are refused at once.
///
/// @param blockFor gives the block to read into for a size in bytes, truncated to 32 bits; null
///        where there is none. What the file then lacks, or cannot be read, leaves the rest of the
///        block as it was.
/// @return false when there is no file to open or no block.
bool ReadRegularFile(const std::string& path,
                     const std::function<unsigned char*(std::uint32_t)>& blockFor);

/// Creates the file at path for binary writing, in place of one that is there. Where the platform
/// has file modes, only the owner can read it, and a link at path is replaced, never followed.
///
/// @return the open file, which the caller closes; null when it could not be created.
std::FILE* CreateOwnerOnlyFile(const std::string& path);

}  // namespace tavrin::platform
