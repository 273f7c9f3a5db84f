#pragma once

#include "check/Reading.h"
#include "files/FileTransfer.h"

namespace tavrin::tool {

/// Reads a definition that is plain already or enciphered: of the two texts that it can be, the one
/// in which the reading code finds the section.
Reading ReadDefinition(const Bytes& definition);

}  // namespace tavrin::tool
