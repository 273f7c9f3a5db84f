#pragma once

#include "check/Finding.h"

namespace tavrin::tool {

/// What of a file's findings is worth reading: those of the severity or a higher one, and of more
/// than 100 the gravest, with one more that tells the number of the others.
Findings LimitFindings(Findings findings, Severity threshold);

}  // namespace tavrin::tool
