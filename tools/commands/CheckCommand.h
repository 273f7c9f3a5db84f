#pragma once

#include <CLI/CLI.hpp>

#include "ExitStatus.h"

namespace tavrin::tool {

/// Adds the command check, which tells the authors of definitions what the library makes of them.
/// After it has run, status is what it found.
void AddCheck(CLI::App* app, ExitStatus* status);

}  // namespace tavrin::tool
