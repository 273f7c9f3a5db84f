#pragma once

#include <CLI/CLI.hpp>

#include "ExitStatus.h"

namespace tavrin::tool {

/// Adds the command get, which prints the values of a definition's keys. After it has run, status
/// is what came of it.
void AddGet(CLI::App* app, ExitStatus* status);

}  // namespace tavrin::tool
