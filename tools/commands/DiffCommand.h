#pragma once

#include "commands/Command.h"

namespace tavrin::tool {

/// The command diff, which tells what changes for the printer from one definition to another.
Command DiffCommand();

}  // namespace tavrin::tool
