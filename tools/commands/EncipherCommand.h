#pragma once

#include <CLI/CLI.hpp>

namespace tavrin::tool {

/// Adds the command encipher, which makes a printer definition of a plain INI file that loads.
void AddEncipher(CLI::App* app);

}  // namespace tavrin::tool
