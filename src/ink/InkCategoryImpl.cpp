#include "ink/InkCategoryImpl.h"

#include <algorithm>

namespace tavrin {

bool InkCategoryImpl::AddSlot(const NumberedInkSlot* slot) {
  if (slot == nullptr) return false;
  slots.push_back(slot);
  return true;
}

bool InkCategoryImpl::ListSlotNumbers(std::int32_t** numbers, std::int32_t* count) const {
  if (slots.empty()) return false;
  *numbers = new std::int32_t[slots.size()];
  *count = static_cast<std::int32_t>(slots.size());
  std::transform(slots.begin(), slots.end(), *numbers, [](const NumberedInkSlot* slot) {
    return static_cast<std::int32_t>(slot->GetSlotNumber());
  });
  return true;
}

}  // namespace tavrin
