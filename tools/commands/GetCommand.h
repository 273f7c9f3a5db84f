#pragma once

#include "commands/Command.h"

namespace tavrin::tool {

/// The command get, which prints the values of a definition's keys.
Command GetCommand();

}  // namespace tavrin::tool
