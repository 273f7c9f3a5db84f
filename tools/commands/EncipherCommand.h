#pragma once

#include "commands/Command.h"

namespace tavrin::tool {

/// The command encipher, which makes a printer definition of a plain INI file that loads.
Command EncipherCommand();

}  // namespace tavrin::tool
