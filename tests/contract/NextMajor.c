/* What stands in for the library of the next major version: it has seven print modes. */
#include "TavrinLib.h"

bool TavrinGetModeCount(uint32_t* count) {
  *count = 7;
  return true;
}
