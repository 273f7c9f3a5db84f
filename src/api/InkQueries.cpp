#include "InkSlot.h"
#include "TavrinLib.h"
#include "api/LibraryInstance.h"

using namespace tavrin;

bool TavrinGetItemCountOfInkCategory(uint32_t* count) {
  return Query([&](const PrinterConfig& config) {
    *count = static_cast<uint32_t>(config.InkCategories.size());
    return true;
  });
}

bool TavrinGetInkSlotNumConposeInkCategory(int32_t index, int32_t** numbers, int32_t* count) {
  return Query([&](const PrinterConfig& config) {
    const auto& categories = config.InkCategories;
    if (index < 0 || static_cast<size_t>(index) >= categories.size()) return Fail(ErrorFailed);
    return categories[static_cast<size_t>(index)]->ListSlotNumbers(numbers, count) ||
           Fail(ErrorFailed);
  });
}

bool TavrinGetItemCountOfInkSlot(uint32_t* count) {
  return Query([&](const PrinterConfig& config) {
    *count = static_cast<uint32_t>(config.InkSlotNum);
    return true;
  });
}

bool TavrinGetInkSlot(uint32_t slotNumber, InkSlot** slot) {
  return Query([&](const PrinterConfig& config) {
    if (slot == nullptr) return Fail(ErrorNotInitialized);
    // Hosts take the slot without const, but its operations all have it.
    *slot = const_cast<NumberedInkSlot*>(config.FindInkSlot(slotNumber));
    return *slot != nullptr;
  });
}
