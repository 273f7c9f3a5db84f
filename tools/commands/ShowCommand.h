#pragma once

#include <CLI/CLI.hpp>

namespace tavrin::tool {

/// Adds the command show, which prints what the library answers about a printer definition, as any
/// host would ask it.
void AddShow(CLI::App* app);

}  // namespace tavrin::tool
