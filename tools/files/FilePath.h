#pragma once

#include <filesystem>
#include <string>

namespace tavrin::tool {

/// The path that a command line argument names. Arguments are in the process's code page, which a
/// path made from narrow text need not assume.
std::filesystem::path ToPath(const std::string& argument);

/// The reverse of ToPath, for functions that take narrow paths in the process's code page.
std::string ToArgument(const std::filesystem::path& path);

}  // namespace tavrin::tool
