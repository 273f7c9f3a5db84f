#pragma once

#include <optional>

#include "files/FileTransfer.h"

namespace tavrin::tool {

/// How a file holds a definition.
enum class Container { Plain, Enciphered };

/// The name that options and outputs have for it.
const char* NameOf(Container container);

/// How the file holds its text, which nothing in it says: the way in which a definition shows.
/// There is none in a file that shows one neither as it stands nor deciphered.
std::optional<Container> ContainerOf(const Bytes& file);

}  // namespace tavrin::tool
