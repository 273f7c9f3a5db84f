#pragma once

#include <cstdint>
#include <string>
#include <utility>
#include <vector>

#include "ink/NumberedInkSlot.h"

namespace tavrin {

/// A named list of slots that the host treats as one ink, or as a total of inks. The slots must
/// outlive it.
class InkCategoryImpl {
 public:
  explicit InkCategoryImpl(std::string categoryName) : name(std::move(categoryName)) {}
  virtual ~InkCategoryImpl() = default;
  InkCategoryImpl(const InkCategoryImpl&) = delete;
  InkCategoryImpl& operator=(const InkCategoryImpl&) = delete;

  /// Appends slot, which may be there already.
  ///
  /// @return false, nothing added, when slot is null.
  bool AddSlot(const NumberedInkSlot* slot);

  /// Hands out the numbers of the slots, in the order added.
  ///
  /// @param numbers receives a new array for the host's TavrinRelease().
  /// @param count receives the number of its elements.
  /// @return false, both outputs untouched, when there are no slots.
  bool ListSlotNumbers(std::int32_t** numbers, std::int32_t* count) const;

  std::string name;
  std::vector<const NumberedInkSlot*> slots;
};

}  // namespace tavrin
