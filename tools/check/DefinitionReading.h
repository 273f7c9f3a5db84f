#pragma once

#include "FileTransfer.h"
#include "check/Reading.h"

namespace tavrin::tool {

/// Reads a definition that is plain already or enciphered: of the two texts that it can be, the one
/// in which the reading code finds the section.
Reading ReadDefinition(const Bytes& definition);

}  // namespace tavrin::tool
