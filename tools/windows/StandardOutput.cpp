#include "StandardOutput.h"

#include <cstdio>

#include <fcntl.h>
#include <io.h>

namespace tavrin::tool {

void MakeStandardOutputBinary() {
  _setmode(_fileno(stdout), _O_BINARY);
}

}  // namespace tavrin::tool
