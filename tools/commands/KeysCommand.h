#pragma once

#include <CLI/CLI.hpp>

namespace tavrin::tool {

/// Adds the command keys, which prints what there is to know of the keys of a definition.
void AddKeys(CLI::App* app);

}  // namespace tavrin::tool
