#pragma once

#include "check/Finding.h"
#include "check/Reading.h"

namespace tavrin::tool {

/// Leaves of findings that follow from one another the cause alone, with the severity of the worst
/// and a sentence on the others.
void FoldConsequences(const Reading& reading, Findings* findings);

}  // namespace tavrin::tool
