#pragma once

#include <optional>
#include <string>

#include "files/FileTransfer.h"

namespace tavrin::tool {

/// What is to become of a key.
struct Assignment {
  std::string key;
  std::optional<std::string> value;  ///< as the library shall read it; none: the key is to go
};

/// The value as a line has to have it: in quotes where its blanks or quotes would be taken off.
std::string Written(const std::string& value);

/// The plain definition with the assignment made; every byte that it does not concern stays.
Bytes Assigned(const Bytes& plain, const Assignment& assignment);

}  // namespace tavrin::tool
