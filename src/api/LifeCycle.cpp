#include "TavrinLib.h"
#include "api/LibraryInstance.h"

using namespace tavrin;

namespace {

/// Not TavrinFinalize, in whose place a host's own function of that name would be called.
void ReleaseInstance() {
  delete libraryInstance;
  libraryInstance = nullptr;
}

}  // namespace

bool TavrinInitialize(const char* path) {
  if (path == nullptr) return Fail(ErrorInvalidArgument);
  ReleaseInstance();
  libraryInstance = CreatePrinterConfig(path).release();
  return libraryInstance != nullptr || Fail(ErrorFailed);
}

bool TavrinFinalize() {
  ReleaseInstance();
  return true;
}

bool TavrinGetLastError(uint32_t* code) {
  *code = lastErrorCode;
  return true;
}
