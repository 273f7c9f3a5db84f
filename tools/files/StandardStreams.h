#pragma once

#include <string>

namespace tavrin::tool {

/// Makes standard output pass bytes on unchanged, line ends included.
void MakeStandardOutputBinary();

/// The same for standard input.
void MakeStandardInputBinary();

/// True when standard output is a terminal.
bool IsTerminal();

/// True when standard output is a terminal that shows the colours of escape sequences from now on.
bool PrepareTerminalColors();

/// False when standard output or the output for errors is a terminal that shows no UTF-8. What is
/// no terminal takes it always.
bool TakesUtf8();

/// The value of the variable of the environment; empty when there is none.
std::string EnvironmentValue(const char* name);

}  // namespace tavrin::tool
