#pragma once

#include "commands/Command.h"

namespace tavrin::tool {

/// The command keys, which prints what there is to know of the keys of a definition.
Command KeysCommand();

}  // namespace tavrin::tool
