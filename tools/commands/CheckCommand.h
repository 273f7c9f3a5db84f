#pragma once

#include <CLI/CLI.hpp>

namespace tavrin::tool {

/// Adds the command check, which tells the authors of definitions what the library makes of them.
/// After it has run, status is 0 when nothing was found that counts, 1 for warnings, 2 for errors,
/// and 3 when a file could not be read.
void AddCheck(CLI::App* app, int* status);

}  // namespace tavrin::tool
