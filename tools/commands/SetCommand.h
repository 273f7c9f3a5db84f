#pragma once

#include "commands/Command.h"

namespace tavrin::tool {

/// The command set, which changes keys of a definition in place.
Command SetCommand();

}  // namespace tavrin::tool
