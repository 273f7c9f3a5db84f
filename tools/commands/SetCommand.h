#pragma once

#include <CLI/CLI.hpp>

#include "ExitStatus.h"

namespace tavrin::tool {

/// Adds the command set, which changes keys of a definition in place. After it has run, status is
/// what the change brings.
void AddSet(CLI::App* app, ExitStatus* status);

}  // namespace tavrin::tool
