// The operations of InkModel that derive its categories.
#include <map>
#include <memory_resource>
#include <utility>

#include "ink/InkModel.h"

namespace tavrin {

namespace {

// Material that is removed from the finished model, and so is no part of it.
constexpr std::uint32_t kSupportColor = 56;

std::uint32_t ColorOf(const NumberedInkSlot& slot) {
  std::uint32_t code = 0;
  slot.GetColorCode(&code);
  return code;
}

/// Equal for slots that hold the same ink.
std::uint64_t InkOf(const NumberedInkSlot& slot) {
  std::uint32_t id = 0;
  slot.GetInkIdNumber(&id);
  return std::uint64_t{id} << 32 | ColorOf(slot);
}

}  // namespace

bool InkModel::GroupInkSlots(std::vector<SlotGroup>* groups) const {
  groups->clear();
  groups->reserve(InkSlots.size());
  std::pmr::monotonic_buffer_resource nodes;
  std::pmr::map<std::uint64_t, std::size_t> groupOfInk(&nodes);
  for (const auto& slot : InkSlots) {
    const auto [entry, isNew] = groupOfInk.emplace(InkOf(*slot), groups->size());
    if (isNew) groups->emplace_back();
    (*groups)[entry->second].push_back(slot.get());
  }
  return true;
}

bool InkModel::BuildInkCategories() {
  InkCategories.clear();
  auto modelInk = std::make_unique<InkCategoryImpl>("[Total] Model Ink");
  std::vector<SlotGroup> groups;
  GroupInkSlots(&groups);
  for (SlotGroup& group : groups) {
    const NumberedInkSlot& first = *group.front();
    auto category = std::make_unique<InkCategoryImpl>(first.InkNameString());
    if (ColorOf(first) != kSupportColor)
      modelInk->slots.insert(modelInk->slots.end(), group.begin(), group.end());
    category->slots = std::move(group);
    InkCategories.push_back(std::move(category));
  }
  InkCategories.push_back(std::move(modelInk));
  return AddCategoryOfAllInks("[Total] All Ink");
}

void InkModel::BuildDefaultInkCategories() {
  InkCategories.clear();
  AddCategoryByColorAndInkType("Support", kSupportColor, 114);
  AddCategoryByColorAndInkType("Clear", 24, 113);
  AddCategoryByColorAndInkType("White", 15, 113);
  AddCategoryByColors("Color", {1, 2, 3, 4});
  AddCategoryByColors("[Total] Model Ink", {1, 2, 3, 4, 15, 24});
  AddCategoryOfAllInks("[Total] All Ink");
}

bool InkModel::AddCategoryOfAllInks(const std::string& name) {
  auto category = std::make_unique<InkCategoryImpl>(name);
  for (const auto& slot : InkSlots) {
    if (slot->IsValid()) category->AddSlot(slot.get());
  }
  InkCategories.push_back(std::move(category));
  return true;
}

bool InkModel::AddCategoryByColors(const std::string& name,
                                   const std::vector<std::uint32_t>& colorCodes) {
  auto category = std::make_unique<InkCategoryImpl>(name);
  for (const auto& slot : InkSlots) {
    for (const std::uint32_t code : colorCodes) {
      if (slot->ColorCode() == code) category->AddSlot(slot.get());
    }
  }
  InkCategories.push_back(std::move(category));
  return true;
}

bool InkModel::AddCategoryByColorAndInkType(const std::string& name, std::uint32_t colorCode,
                                            std::uint32_t inkTypeCode) {
  auto category = std::make_unique<InkCategoryImpl>(name);
  for (const auto& slot : InkSlots) {
    if (slot->ColorCode() == colorCode && slot->InkTypeCode() == inkTypeCode) {
      category->AddSlot(slot.get());
    }
  }
  InkCategories.push_back(std::move(category));
  return true;
}

}  // namespace tavrin
