#pragma once

#include <CLI/CLI.hpp>

namespace tavrin::tool {

/// Adds the command decipher, which turns a printer definition into a plain INI file.
void AddDecipher(CLI::App* app);

}  // namespace tavrin::tool
