#pragma once

#include <string>

#include "Failure.h"
#include "check/Reading.h"

namespace tavrin::tool {

/// The refusal of a key that the library does not know, with the one that is most likely meant.
Failure UnknownKey(const Reading& reading, const std::string& name, const std::string& remedy);

}  // namespace tavrin::tool
