#include "ink/InkModel.h"

#include "ink/InkSlotImpl.h"
#include "ink/InvalidInkSlot.h"

namespace tavrin {

void InkModel::SetDefaultColors() {
  Colors.Clear();
  Colors.Add(1, "Cyan");
  Colors.Add(2, "Magenta");
  Colors.Add(3, "Yellow");
  Colors.Add(4, "Black");
  Colors.Add(15, "White");
  Colors.Add(24, "Clear");
  Colors.Add(56, "Support");
  Colors.Add(57, "Pure Clear");
}

void InkModel::SetDefaultInkTypes() {
  InkTypes.Clear();
  InkTypes.Add(113, "KP-300");
  InkTypes.Add(114, "LX-300");
  InkTypes.Add(134, "KP-310");
}

void InkModel::SetDefaultInkSlots() {
  static constexpr struct {
    std::uint32_t colorCode, inkTypeCode;
  } kSlots[] = {{56, 114}, {56, 114}, {24, 113}, {15, 113}, {1, 113}, {2, 113}, {3, 113}, {4, 113}};

  InkSlots.clear();
  InkSlotNum = 8;
  std::uint32_t number = 0;
  for (const auto& slot : kSlots)
    AddInkSlot(++number, slot.colorCode, slot.inkTypeCode);
}

bool InkModel::AddInkSlot(std::uint32_t slot, std::uint32_t colorCode, std::uint32_t inkTypeCode) {
  const IdentifiableData* color = Colors.Find(static_cast<std::int32_t>(colorCode));
  const IdentifiableData* inkType = InkTypes.Find(static_cast<std::int32_t>(inkTypeCode));
  if (color != nullptr && inkType != nullptr) {
    InkSlots.push_back(std::make_unique<InkSlotImpl>(slot, *color, *inkType));
  } else {
    InkSlots.push_back(std::make_unique<InvalidInkSlot>(slot));
  }
  return true;
}

NumberedInkSlot* InkModel::FindInkSlot(std::uint32_t slotNumber) const {
  const std::size_t index = std::size_t{slotNumber} - 1;  // 0 wraps to beyond every slot
  return index < InkSlots.size() ? InkSlots[index].get() : nullptr;
}

}  // namespace tavrin
