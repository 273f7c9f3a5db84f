#pragma once

namespace tavrin::tool {

/// Makes standard output pass bytes on unchanged, line ends included.
void MakeStandardOutputBinary();

/// The same for standard input.
void MakeStandardInputBinary();

/// True when standard output is a terminal that shows the colours of escape sequences from now on.
bool PrepareTerminalColors();

}  // namespace tavrin::tool
