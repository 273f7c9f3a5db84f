#pragma once

#include <cstdint>
#include <cstdio>
#include <string>

namespace tavrin::platform {

/// True when path names an existing entry of the file system, of whatever kind.
bool FileExists(const std::wstring& path);

/// Opens the regular file at path for binary reading and asks for its size in bytes. Directories,
/// pipes and devices, which a stream would open or wait for, are refused at once.
///
/// @return false when there is no file to open.
bool GetRegularFileSize(const std::string& path, std::uint64_t* size);

/// Reads up to n bytes from the start of the regular file at path, opened as by GetRegularFileSize,
/// into block. What a shorter file lacks, or cannot be read, leaves the rest of block as it was.
///
/// @return false when there is no file to open.
bool ReadRegularFile(const std::string& path, unsigned char* block, std::uint32_t n);

/// Creates the file at path for binary writing, in place of one that is there. Where the platform
/// has file modes, only the owner can read it, and a link at path is replaced, never followed.
///
/// @return the open file, which the caller closes; null when it could not be created.
std::FILE* CreateOwnerOnlyFile(const std::string& path);

}  // namespace tavrin::platform
