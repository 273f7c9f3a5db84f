#include "ink/InvalidInkSlot.h"

namespace tavrin {

InvalidInkSlot::InvalidInkSlot(std::uint32_t number)
    : NumberedInkSlot(number),
      placeholderColor_(new IdentifiableData),
      placeholderInkType_(new IdentifiableData) {
}

bool InvalidInkSlot::GetInkName(char** name, std::int32_t* size) const {
  if (name == nullptr) return false;
  *name = nullptr;
  *size = 0;
  return true;
}

bool InvalidInkSlot::IsValid() const {
  return false;
}

std::uint32_t InvalidInkSlot::ColorCode() const {
  return static_cast<std::uint32_t>(placeholderColor_->code);
}

std::uint32_t InvalidInkSlot::InkTypeCode() const {
  return static_cast<std::uint32_t>(placeholderInkType_->code);
}

std::string InvalidInkSlot::InkNameString() const {
  return {};
}

}  // namespace tavrin
