#include "TavrinLib.h"
#include "api/LibraryInstance.h"
#include "output/ModelingConditionsWriter.h"

using namespace tavrin;

bool TavrinCreateModelingConditionsFile(const char* path) {
  return Query([&](const PrinterConfig& config) {
    if (path == nullptr) return Fail(ErrorNotInitialized);
    return CreateModelingConditionsWriter(path)->Write(&config) || Fail(ErrorWriteFailed);
  });
}
