#pragma once

#include "facts/DefinitionFacts.h"
#include "sheet/Html.h"

namespace tavrin::tool {

/// The ink slots in their order as tanks of ink, over them the categories that they belong to.
Html InkRack(const DefinitionFacts& facts);

/// The name of the colour of a slot's ink; empty for an ink that the definition does not describe.
std::string ColorNameOf(const DefinitionFacts& facts, const tavrinlib::Slot& slot);

/// What a category is called; no host gets these names.
Html CategoryName(const DefinitionFacts& facts, std::size_t index);

}  // namespace tavrin::tool
