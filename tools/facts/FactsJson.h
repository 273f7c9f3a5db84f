#pragma once

#include <string>

#include "facts/PrinterFacts.h"

namespace tavrin::tool {

/// The facts as one JSON object in ASCII, for programs. The names of its fields stay as they are.
std::string FactsAsJson(const PrinterFacts& facts);

}  // namespace tavrin::tool
