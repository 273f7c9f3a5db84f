#pragma once

#include <string>
#include <vector>

#include "facts/DefinitionFacts.h"

namespace tavrin::tool {

/// What is known of the definitions as one HTML page, for people: a sheet for each, to be looked at
/// on a screen or printed on A4. The page is in ASCII, has all that it needs in itself and runs
/// nothing.
///
/// @param withHidden also what the library reads and hands out to no host.
std::string DataSheets(const std::vector<DefinitionFacts>& definitions, bool withHidden);

}  // namespace tavrin::tool
