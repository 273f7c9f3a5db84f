#pragma once

#include "check/Container.h"
#include "check/Reading.h"
#include "files/FileTransfer.h"

namespace tavrin::tool {

struct DefinitionReading {
  Reading reading;
  Container container;  ///< what the file was taken for
};

/// Reads a definition that is plain already or enciphered: of the two texts that it can be, the one
/// in which the reading code finds the section.
DefinitionReading ReadDefinition(const Bytes& definition);

}  // namespace tavrin::tool
