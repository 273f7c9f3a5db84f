/// @file
/// The exports of TavrinLib as types, for a host that links nothing and loads the library while it
/// runs, with `dlopen` or `LoadLibrary`.
///
/// `TavrinInitializeFunction` is a pointer to a function such as TavrinInitialize(), and so with
/// each export.
#ifndef TAVRIN_FUNCTIONS_H
#define TAVRIN_FUNCTIONS_H

#include "TavrinLib.h"

/// @defgroup loading Loading at run time
/// The exports as types, and the version of the library that they belong to.

/// @cond
typedef bool (*TavrinInitializeFunction)(const char* path);
typedef bool (*TavrinFinalizeFunction)(void);
typedef bool (*TavrinGetLastErrorFunction)(uint32_t* code);
typedef bool (*TavrinGetAreaSizeFunction)(uint32_t* x, uint32_t* y, uint32_t* z);
typedef bool (*TavrinGetAreaMarginSizeFunction)(uint32_t* margin);
typedef bool (*TavrinGetModeCountFunction)(uint32_t* count);
typedef bool (*TavrinGetModeConfigFunction)(int32_t index, int32_t config[6]);
typedef bool (*TavrinGetTopSupportThicknessFunction)(uint32_t* thickness);
typedef bool (*TavrinGetSideSupportThicknessFunction)(int32_t modelHeight, uint32_t* thickness);
typedef bool (*TavrinGetDetachLayerHeightFunction)(uint32_t* height);
typedef bool (*TavrinGetSmoothingFunction)(bool* enabled);
typedef bool (*TavrinGetFeedBiDirectionFunction)(bool* enabled);
typedef bool (*TavrinGetWrapReductionFunction)(bool* enabled);
typedef bool (*TavrinGetWarpWarningFunction)(int32_t index, bool* limited);
typedef bool (*TavrinGetInfoFunction)(char info[384]);
typedef bool (*TavrinGetHeadBandSizeFunction)(double* size);
typedef bool (*TavrinGetDefaultPrintModeFunction)(uint32_t* number);
typedef bool (*TavrinGetChippingAllowanceFunction)(uint32_t* setting);
typedef bool (*TavrinGetSupportSizeFunction)(uint32_t* size);
typedef bool (*TavrinGetAutoCleaningFunction)(bool* enabled);
typedef bool (*TavrinGetCheckNozzleWhilePrintingFunction)(bool* enabled);
typedef bool (*TavrinGetItemCountOfInkCategoryFunction)(uint32_t* count);
typedef bool (*TavrinGetInkSlotNumConposeInkCategoryFunction)(int32_t index, int32_t** numbers,
                                                              int32_t* count);
typedef bool (*TavrinGetItemCountOfInkSlotFunction)(uint32_t* count);
typedef bool (*TavrinGetInkSlotFunction)(uint32_t slotNumber, InkSlot** slot);
typedef bool (*TavrinCreateModelingConditionsFileFunction)(const char* path);
/// @endcond

/// @ingroup loading
/// Applies the macro X to the name of every export. That fills a TavrinFunctions:
///
///     #define FIND(name) tavrin.name = (name##Function)dlsym(library, #name);
///     TAVRIN_FUNCTIONS(FIND)
#define TAVRIN_FUNCTIONS(X)                \
  X(TavrinInitialize)                      \
  X(TavrinFinalize)                        \
  X(TavrinGetLastError)                    \
  X(TavrinGetAreaSize)                     \
  X(TavrinGetAreaMarginSize)               \
  X(TavrinGetModeCount)                    \
  X(TavrinGetModeConfig)                   \
  X(TavrinGetTopSupportThickness)          \
  X(TavrinGetSideSupportThickness)         \
  X(TavrinGetDetachLayerHeight)            \
  X(TavrinGetSmoothing)                    \
  X(TavrinGetFeedBiDirection)              \
  X(TavrinGetWrapReduction)                \
  X(TavrinGetWarpWarning)                  \
  X(TavrinGetInfo)                         \
  X(TavrinGetHeadBandSize)                 \
  X(TavrinGetDefaultPrintMode)             \
  X(TavrinGetChippingAllowance)            \
  X(TavrinGetSupportSize)                  \
  X(TavrinGetAutoCleaning)                 \
  X(TavrinGetCheckNozzleWhilePrinting)     \
  X(TavrinGetItemCountOfInkCategory)       \
  X(TavrinGetInkSlotNumConposeInkCategory) \
  X(TavrinGetItemCountOfInkSlot)           \
  X(TavrinGetInkSlot)                      \
  X(TavrinCreateModelingConditionsFile)

/// @ingroup loading
/// A pointer to every export, under the export's own name: `tavrin.TavrinInitialize(path)`.
struct TavrinFunctions {
#define TAVRIN_FUNCTION_MEMBER(name) name##Function name;
  TAVRIN_FUNCTIONS(TAVRIN_FUNCTION_MEMBER)
#undef TAVRIN_FUNCTION_MEMBER
};

#endif
