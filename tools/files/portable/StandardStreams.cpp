#include "files/StandardStreams.h"

#include <unistd.h>

namespace tavrin::tool {

void MakeStandardOutputBinary() {
}

void MakeStandardInputBinary() {
}

bool PrepareTerminalColors() {
  return isatty(STDOUT_FILENO) == 1;
}

}  // namespace tavrin::tool
