#pragma once

#include <CLI/CLI.hpp>

#include "ExitStatus.h"

namespace tavrin::tool {

/// Adds the command show, which prints what the library answers about printer definitions, as any
/// host would ask it. After it has run, status is what came of it.
void AddShow(CLI::App* app, ExitStatus* status);

}  // namespace tavrin::tool
