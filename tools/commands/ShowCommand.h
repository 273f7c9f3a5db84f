#pragma once

#include "commands/Command.h"

namespace tavrin::tool {

/// The command show, which prints what the library answers about printer definitions, as any host
/// would ask it.
Command ShowCommand();

}  // namespace tavrin::tool
