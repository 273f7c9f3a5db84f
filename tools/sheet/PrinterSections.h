#pragma once

#include "facts/DefinitionFacts.h"
#include "sheet/Html.h"

namespace tavrin::tool {

// The parts of a data sheet that are about the printer itself.

Html VolumeSection(const DefinitionFacts& facts);
Html SupportSection(const DefinitionFacts& facts);
Html ModesSection(const DefinitionFacts& facts);
Html MachineSection(const DefinitionFacts& facts);
/// What the library reads and hands out to no host.
Html HiddenSection(const DefinitionFacts& facts);

}  // namespace tavrin::tool
