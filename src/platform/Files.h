#pragma once

#include <cstdint>
#include <cstdio>
#include <string>

namespace tavrin::platform {

/// True when path names an existing entry of the file system, of whatever kind.
bool FileExists(const std::wstring& path);

/// Opens the regular file at path for binary reading. Directories, pipes and devices, which a
/// stream would open or wait for, are refused at once.
///
/// @param size receives the size of the file in bytes.
/// @return the open file, which the caller closes; null when there is none to open.
std::FILE* OpenRegularFile(const std::string& path, std::uint64_t* size);

/// Creates the file at path for binary writing, in place of one that is there. Where the platform
/// has file modes, only the owner can read it, and a link at path is replaced, never followed.
///
/// @return the open file, which the caller closes; null when it could not be created.
std::FILE* CreateOwnerOnlyFile(const std::string& path);

}  // namespace tavrin::platform
