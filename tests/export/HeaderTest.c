/* The header as a C99 host sees it. An export that the library lacks fails at link. */
#include <stdio.h>

#include "TavrinLib.h"

typedef void (*AnyFunction)(void);

static const AnyFunction kExports[] = {
    (AnyFunction)TavrinInitialize,
    (AnyFunction)TavrinFinalize,
    (AnyFunction)TavrinGetLastError,
    (AnyFunction)TavrinGetAreaSize,
    (AnyFunction)TavrinGetAreaMarginSize,
    (AnyFunction)TavrinGetModeCount,
    (AnyFunction)TavrinGetModeConfig,
    (AnyFunction)TavrinGetTopSupportThickness,
    (AnyFunction)TavrinGetSideSupportThickness,
    (AnyFunction)TavrinGetDetachLayerHeight,
    (AnyFunction)TavrinGetSmoothing,
    (AnyFunction)TavrinGetFeedBiDirection,
    (AnyFunction)TavrinGetWrapReduction,
    (AnyFunction)TavrinGetWarpWarning,
    (AnyFunction)TavrinGetInfo,
    (AnyFunction)TavrinGetHeadBandSize,
    (AnyFunction)TavrinGetDefaultPrintMode,
    (AnyFunction)TavrinGetChippingAllowance,
    (AnyFunction)TavrinGetSupportSize,
    (AnyFunction)TavrinGetAutoCleaning,
    (AnyFunction)TavrinGetCheckNozzleWhilePrinting,
    (AnyFunction)TavrinGetItemCountOfInkCategory,
    (AnyFunction)TavrinGetInkSlotNumConposeInkCategory,
    (AnyFunction)TavrinGetItemCountOfInkSlot,
    (AnyFunction)TavrinGetInkSlot,
    (AnyFunction)TavrinCreateModelingConditionsFile,
};

static int failures = 0;

static void Expect(bool condition, const char* what) {
  if (!condition) {
    ++failures;
    printf("failed: %s\n", what);
  }
}

int main(void) {
  uint32_t code = 99;
  uint32_t count = 99;
  Expect(sizeof(bool) == 1, "results are one byte");
  Expect(TavrinGetLastError(&code) && code == ErrorNone, "no failure yet");
  Expect(!TavrinGetModeCount(&count) && count == 0, "no definition is loaded");
  Expect(TavrinGetLastError(&code) && code == ErrorNotInitialized, "the failure is recorded");
  Expect(TavrinFinalize(), "finalising without a definition");
  for (size_t i = 0; i < sizeof kExports / sizeof kExports[0]; ++i) {
    Expect(kExports[i] != 0, "an export has an address");
  }
  return failures != 0;
}
