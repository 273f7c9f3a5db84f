#pragma once

#include "ink/IdentifiableData.h"
#include "ink/NumberedInkSlot.h"

namespace tavrin {

/// A slot whose colour and ink type are in the tables, which must outlive it.
class InkSlotImpl : public NumberedInkSlot {
 public:
  InkSlotImpl(std::uint32_t number, const IdentifiableData& slotColor,
              const IdentifiableData& slotInkType)
      : NumberedInkSlot(number), color(&slotColor), inkType(&slotInkType) {}

  bool GetInkName(char** name, std::int32_t* size) const override;
  bool IsValid() const override;

  std::uint32_t ColorCode() const override;
  std::uint32_t InkTypeCode() const override;
  std::string InkNameString() const override;

 private:
  const IdentifiableData* color;
  const IdentifiableData* inkType;
};

}  // namespace tavrin
