#pragma once

#include <cstdint>
#include <string>

#include "ink/InkSlot.h"

namespace tavrin {

/// What the library itself asks of a slot, valid or not.
class NumberedInkSlot : public InkSlot {
 public:
  explicit NumberedInkSlot(std::uint32_t number) : slotNumber_(number) {}

  bool GetColorCode(std::uint32_t* code) const override;
  bool GetInkTypeCode(std::uint32_t* code) const override;
  bool GetInkId(char** id, std::int32_t* size) const override;

  /// The slot's number, from 1.
  virtual std::uint32_t GetSlotNumber() const { return slotNumber_; }
  virtual std::uint32_t ColorCode() const = 0;
  virtual std::uint32_t InkTypeCode() const = 0;
  /// The ink id as a number. Ink types or colours that agree in their last three digits give the
  /// same.
  ///
  /// @return false, number untouched, when the id is no number.
  virtual bool GetInkIdNumber(std::uint32_t* number) const;
  virtual std::string InkIdString() const;
  virtual std::string InkNameString() const = 0;

 private:
  std::uint32_t slotNumber_;
};

}  // namespace tavrin
