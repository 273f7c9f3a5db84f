#pragma once

#include <cstdio>
#include <string>

namespace tavrin::platform {

/// True when path names an existing entry of the file system, of whatever kind.
bool FileExists(const std::wstring& path);

/// True when opening path for reading gives a file's bytes at once: false for what is missing and
/// for directories, pipes and devices, which a stream would open or wait for.
bool IsRegularFile(const std::string& path);

/// Creates the file at path for binary writing, in place of one that is there. Where the platform
/// has file modes, only the owner can read it, and a link at path is replaced, never followed.
///
/// @return the open file, which the caller closes; null when it could not be created.
std::FILE* CreateOwnerOnlyFile(const std::string& path);

}  // namespace tavrin::platform
