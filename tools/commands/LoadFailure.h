#pragma once

#include <chrono>
#include <string>

#include "Failure.h"

namespace tavrin::tool {

/// Why the library did not load the definition file, as a look at the file and at its plain copy's
/// place tells afterwards.
///
/// @param taken how long the load took.
Failure ExplainLoadFailure(const std::string& file, std::chrono::milliseconds taken);

}  // namespace tavrin::tool
