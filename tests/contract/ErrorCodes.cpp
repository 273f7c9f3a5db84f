// No export has a parameter of this enumeration, so a function for the baseline alone brings it in.
#include "TavrinLib.h"

extern "C" TAVRIN_API TavrinErrorCode TavrinErrorCodes() {
  return ErrorNone;
}
