#include "ink/InkModel.h"

#include <cassert>

#include "ink/InkSlotImpl.h"
#include "ink/InvalidInkSlot.h"

namespace tavrin {

namespace {

struct BuiltInEntry {
  std::int32_t code;
  const char* name;
};

constexpr BuiltInEntry kColors[] = {
    {1, "Cyan"},   {2, "Magenta"}, {3, "Yellow"},   {4, "Black"},
    {15, "White"}, {24, "Clear"},  {56, "Support"}, {57, "Pure Clear"},
};

constexpr BuiltInEntry kInkTypes[] = {{113, "KP-300"}, {114, "LX-300"}, {134, "KP-310"}};

constexpr struct {
  std::uint32_t colorCode, inkTypeCode;
} kSlots[] = {{56, 114}, {56, 114}, {24, 113}, {15, 113}, {1, 113}, {2, 113}, {3, 113}, {4, 113}};

template <std::size_t kCount>
void Refill(InkTable* table, const BuiltInEntry (&entries)[kCount]) {
  table->Clear();
  for (const BuiltInEntry& entry : entries)
    table->Add(entry.code, entry.name);
}

}  // namespace

void InkModel::SetDefaultColors() {
  Refill(&Colors, kColors);
}

void InkModel::SetDefaultInkTypes() {
  Refill(&InkTypes, kInkTypes);
}

void InkModel::SetDefaultInkSlots() {
  InkSlots.clear();
  InkSlotNum = 8;
  std::uint32_t number = 0;
  for (const auto& slot : kSlots)
    AddInkSlot(++number, slot.colorCode, slot.inkTypeCode);
}

bool InkModel::AddInkSlot(std::uint32_t slot, std::uint32_t colorCode, std::uint32_t inkTypeCode) {
  assert(slot == InkSlots.size() + 1);
  const IdentifiableData* color = Colors.Find(static_cast<std::int32_t>(colorCode));
  const IdentifiableData* inkType = InkTypes.Find(static_cast<std::int32_t>(inkTypeCode));
  if (color != nullptr && inkType != nullptr) {
    InkSlots.push_back(std::make_unique<InkSlotImpl>(slot, *color, *inkType));
  } else {
    InkSlots.push_back(std::make_unique<InvalidInkSlot>(slot));
  }
  return true;
}

const NumberedInkSlot* InkModel::FindInkSlot(std::uint32_t slotNumber) const {
  const std::size_t index = std::size_t{slotNumber} - 1;  // 0 wraps to beyond every slot
  return index < InkSlots.size() ? InkSlots[index].get() : nullptr;
}

}  // namespace tavrin
