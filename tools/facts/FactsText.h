#pragma once

#include <string>

#include "facts/PrinterFacts.h"

namespace tavrin::tool {

/// The facts as a report for people.
std::string FactsAsText(const PrinterFacts& facts);

}  // namespace tavrin::tool
