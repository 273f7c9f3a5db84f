#pragma once

#include "check/Finding.h"
#include "check/Reading.h"

namespace tavrin::tool {

/// The warnings and errors that a change of a definition brings and those that it mends.
struct FindingChanges {
  FindingChanges(const Reading& before, const Reading& after);

  Findings brought;  ///< of the definition after the change
  Findings mended;   ///< of that before it
};

}  // namespace tavrin::tool
