#pragma once

#include <string>
#include <vector>

#include <CLI/CLI.hpp>

namespace tavrin::tool {

/// The word that asks for completions in place of a command. Shells ask, so no help lists it.
inline constexpr char kComplete[] = "__complete";

/// What may stand in place of the last word, which has been begun or is empty: a line for each
/// whole word, behind a tabulator what it means; a word that ends in '=' goes on. The line ":files"
/// stands for the names of files.
///
/// @param words the command line behind the name of the program; none are one that is empty.
std::string Completions(const CLI::App& app, const std::vector<std::string>& words);

}  // namespace tavrin::tool
