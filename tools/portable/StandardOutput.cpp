#include "StandardOutput.h"

namespace tavrin::tool {

void MakeStandardOutputBinary() {
}

}  // namespace tavrin::tool
