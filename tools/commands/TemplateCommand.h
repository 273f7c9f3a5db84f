#pragma once

#include "commands/Command.h"

namespace tavrin::tool {

/// The command template, which prints a plain definition with every key explained that loads to the
/// built-in defaults.
Command TemplateCommand();

}  // namespace tavrin::tool
