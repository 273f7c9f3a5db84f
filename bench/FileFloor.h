#pragma once

#include <string>
#include <string_view>

namespace tavrin::bench {

/// Reads the file at path with as few system calls as it takes.
std::string ReadBare(const std::string& path);

/// Writes the file at path the same way.
void WriteBare(const std::string& path, std::string_view bytes);

}  // namespace tavrin::bench
