#pragma once

#include <string>

#include "facts/DefinitionFacts.h"

namespace tavrin::tool {

/// The facts as a report for people.
std::string FactsAsText(const PrinterFacts& facts);

/// The same with what no export hands out behind it.
std::string AllFactsAsText(const DefinitionFacts& facts);

}  // namespace tavrin::tool
