#pragma once

#include <string>
#include <vector>

#include <CLI/CLI.hpp>

namespace tavrin::tool {

/// Adds an option that takes one of the choices, of which value holds the default.
CLI::Option* AddChoice(CLI::App* command, const std::string& name, std::string* value,
                       const std::vector<std::string>& choices, const std::string& meaning);

/// Gives the help of all commands one form, the exit statuses at its end.
void SetHelpForm(CLI::App* app);

/// Adds the command help, which prints the help of the others.
void AddHelp(CLI::App* app);

/// What is wrong with the command line and what helps, as the one line that the user sees.
std::string MistakeMessage(const CLI::App* app, const CLI::Error& error);

}  // namespace tavrin::tool
