#pragma once

#include "facts/DefinitionFacts.h"
#include "sheet/Html.h"

namespace tavrin::tool {

/// The part of a data sheet that is about its inks: slots and categories.
Html InkSection(const DefinitionFacts& facts);

}  // namespace tavrin::tool
