#pragma once

#include <string>
#include <vector>

#include "facts/DefinitionFacts.h"

namespace tavrin::tool {

/// The facts of one definition as a JSON object in ASCII, those of several as an array of such
/// objects with the names of their files, for programs. The names of the fields stay as they are.
///
/// @param withHidden whether what no export hands out is among them.
std::string FactsAsJson(const DefinitionFacts& facts, bool withHidden);
std::string FactsAsJson(const std::vector<DefinitionFacts>& definitions, bool withHidden);

}  // namespace tavrin::tool
