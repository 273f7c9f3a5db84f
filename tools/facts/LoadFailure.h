#pragma once

#include <chrono>
#include <string>

#include "Failure.h"
#include "check/DefinitionReading.h"

namespace tavrin::tool {

/// Why nothing can be said of a definition that the reading code refuses.
Failure ExplainRefusal(const std::string& file, Container container);

/// Why the library did not load the definition file although the reading code takes it, as a look
/// at its plain copy's place tells afterwards.
///
/// @param taken how long the load took.
Failure ExplainLoadFailure(const std::string& file, std::chrono::milliseconds taken);

}  // namespace tavrin::tool
