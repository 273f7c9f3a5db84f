#pragma once

#include <CLI/CLI.hpp>

#include "ExitStatus.h"

namespace tavrin::tool {

/// Adds the command diff, which tells what changes for the printer from one definition to another.
/// After it has run, status is what it found.
void AddDiff(CLI::App* app, ExitStatus* status);

}  // namespace tavrin::tool
