#pragma once

#include <string>

#include <CLI/CLI.hpp>

namespace tavrin::tool {

/// The help of the command as the source of a manual page, for man. The app itself is a command
/// here.
std::string ManualPage(const CLI::App& command);

/// The command with those that it belongs to, as it is called.
std::string FullName(const CLI::App& command);

}  // namespace tavrin::tool
