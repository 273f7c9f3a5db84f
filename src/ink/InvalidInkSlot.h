#pragma once

#include "ink/IdentifiableData.h"
#include "ink/NumberedInkSlot.h"

namespace tavrin {

/// A slot that names a colour or an ink type that no table has: it keeps its number and answers
/// with placeholders.
class InvalidInkSlot : public NumberedInkSlot {
 public:
  explicit InvalidInkSlot(std::uint32_t number);

  bool GetInkName(char** name, std::int32_t* size) const override;
  bool IsValid() const override;

  std::uint32_t ColorCode() const override;
  std::uint32_t InkTypeCode() const override;
  std::string InkNameString() const override;

 private:
  // Deliberately never freed: they outlive the slot.
  const IdentifiableData* placeholderColor_;
  const IdentifiableData* placeholderInkType_;
};

}  // namespace tavrin
