#pragma once

#include <CLI/CLI.hpp>

namespace tavrin::tool {

/// Adds the command keys, which prints what there is to know of the keys of a definition. After it
/// has run, status is 0, or 4 when it was asked for a key that there is not.
void AddKeys(CLI::App* app, int* status);

}  // namespace tavrin::tool
