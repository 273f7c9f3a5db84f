#pragma once

#include "check/Finding.h"
#include "check/Reading.h"

namespace tavrin::tool {

/// Gives each finding on a line of its own key a column, in characters: that of the part of the
/// value that it quotes, else that of the value where the library read one, else that of the key.
void PlaceColumns(const Reading& reading, Findings* findings);

}  // namespace tavrin::tool
