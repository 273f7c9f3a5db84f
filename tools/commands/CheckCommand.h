#pragma once

#include "commands/Command.h"

namespace tavrin::tool {

/// The command check, which tells the authors of definitions what the library makes of them.
Command CheckCommand();

}  // namespace tavrin::tool
