#pragma once

#include <string>
#include <vector>

namespace tavrin::tool {

/// Whether the argument names a directory.
bool IsDirectory(const std::string& argument);

/// The files *.ini and *.dat in the directory and in those below it, in the order of their paths.
/// Refuses one that cannot be listed or has none.
std::vector<std::string> ListDefinitions(const std::string& directory);

}  // namespace tavrin::tool
