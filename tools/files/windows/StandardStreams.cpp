#include "files/StandardStreams.h"

#include <cstdio>

#include <windows.h>
#include <fcntl.h>
#include <io.h>

namespace tavrin::tool {

void MakeStandardOutputBinary() {
  _setmode(_fileno(stdout), _O_BINARY);
}

void MakeStandardInputBinary() {
  _setmode(_fileno(stdin), _O_BINARY);
}

bool PrepareTerminalColors() {
  const HANDLE output = GetStdHandle(STD_OUTPUT_HANDLE);
  DWORD mode = 0;
  return GetConsoleMode(output, &mode) != 0 &&
         SetConsoleMode(output, mode | ENABLE_VIRTUAL_TERMINAL_PROCESSING) != 0;
}

}  // namespace tavrin::tool
