#include "files/Arguments.h"

#include <windows.h>

namespace tavrin::tool {

bool HasWholeArguments() {
  BOOL hasOther = FALSE;
  WideCharToMultiByte(CP_ACP, WC_NO_BEST_FIT_CHARS, GetCommandLineW(), -1, nullptr, 0, nullptr,
                      &hasOther);
  return hasOther == FALSE;
}

}  // namespace tavrin::tool
