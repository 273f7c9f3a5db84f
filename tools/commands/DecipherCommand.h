#pragma once

#include "commands/Command.h"

namespace tavrin::tool {

/// The command decipher, which turns a printer definition into a plain INI file.
Command DecipherCommand();

}  // namespace tavrin::tool
