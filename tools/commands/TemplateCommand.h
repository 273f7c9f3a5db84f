#pragma once

#include <CLI/CLI.hpp>

namespace tavrin::tool {

/// Adds the command template, which prints a plain definition with every key explained that loads
/// to the built-in defaults.
void AddTemplate(CLI::App* app);

}  // namespace tavrin::tool
