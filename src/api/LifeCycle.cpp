#include "TavrinLib.h"
#include "api/LibraryInstance.h"

using namespace tavrin;

bool TavrinInitialize(const char* path) {
  if (path == nullptr) return Fail(ErrorInvalidArgument);
  TavrinFinalize();
  libraryInstance = CreatePrinterConfig(path).release();
  return libraryInstance != nullptr || Fail(ErrorFailed);
}

bool TavrinFinalize() {
  delete libraryInstance;
  libraryInstance = nullptr;
  return true;
}

bool TavrinGetLastError(uint32_t* code) {
  *code = lastErrorCode;
  return true;
}
