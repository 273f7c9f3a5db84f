#pragma once

#include <cstdint>
#include <memory>
#include <string>
#include <vector>

#include "ink/InkCategoryImpl.h"
#include "ink/InkTable.h"
#include "ink/NumberedInkSlot.h"

namespace tavrin {

/// The inks of a printer: the colours and ink types it knows, its ink slots, and the categories
/// that are derived from them. Slots point into the tables and categories at slots, so fill tables,
/// slots and categories in this order.
class InkModel {
 public:
  using SlotGroup = std::vector<const NumberedInkSlot*>;

  InkModel() = default;
  virtual ~InkModel() = default;
  InkModel(const InkModel&) = delete;
  InkModel& operator=(const InkModel&) = delete;

  /// Replace a table by its built-in entries.
  void SetDefaultColors();
  void SetDefaultInkTypes();
  void SetDefaultInkSlots();

  /// Appends a slot: one that is not valid when a table lacks the code. Always true.
  ///
  /// REQUIRES: slots are added in the order of their numbers, from 1 on.
  bool AddInkSlot(std::uint32_t slot, std::uint32_t colorCode, std::uint32_t inkTypeCode);

  /// The slot of this number; null when there is none.
  const NumberedInkSlot* FindInkSlot(std::uint32_t slotNumber) const;

  /// Derives the categories of slots that the definition file names: one for each pair of ink type
  /// and colour, then the totals of what models are made of and of everything. Always true.
  bool BuildInkCategories();

  /// Derives the six categories that go with the built-in slots, whatever the tables hold.
  void BuildDefaultInkCategories();

  InkTable Colors;
  InkTable InkTypes;
  std::vector<std::unique_ptr<NumberedInkSlot>> InkSlots;  ///< at slot number - 1
  std::int32_t InkSlotNum = 0;
  std::vector<std::unique_ptr<InkCategoryImpl>> InkCategories;

 private:
  /// Groups the slots by ink id and colour, each group and the groups themselves in slot order.
  /// Always true.
  bool GroupInkSlots(std::vector<SlotGroup>* groups) const;
  bool AddCategoryOfAllInks(const std::string& name);
  bool AddCategoryByColors(const std::string& name, const std::vector<std::uint32_t>& colorCodes);
  bool AddCategoryByColorAndInkType(const std::string& name, std::uint32_t colorCode,
                                    std::uint32_t inkTypeCode);
};

}  // namespace tavrin
