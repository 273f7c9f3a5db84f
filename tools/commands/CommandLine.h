#pragma once

#include <string>

#include <CLI/CLI.hpp>

#include "commands/Command.h"

namespace tavrin::tool {

/// Adds a command to the tool. After it has run, status is what came of it.
void AddCommand(const Command& command, CLI::App* app, ExitStatus* status);

/// Gives the help of all commands one form, the exit statuses at its end.
void SetHelpForm(CLI::App* app);

/// The command help, which prints the help of the tool's others.
Command HelpCommand(CLI::App* app);

/// What is wrong with the command line and what helps, as the one line that the user sees.
std::string MistakeMessage(const CLI::App* app, const CLI::Error& error);

}  // namespace tavrin::tool
