#include "unit/Wine.h"

#ifdef _WIN32
#include <windows.h>
#endif

namespace tavrin::test {

bool RunsUnderWine() {
#ifdef _WIN32
  return GetProcAddress(GetModuleHandleW(L"ntdll.dll"), "wine_get_version") != nullptr;
#else
  return false;
#endif
}

}  // namespace tavrin::test
