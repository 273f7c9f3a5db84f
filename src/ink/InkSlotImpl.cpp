#include "ink/InkSlotImpl.h"

#include "util/TextUtilities.h"

namespace tavrin {

bool InkSlotImpl::GetInkName(char** name, std::int32_t* size) const {
  return CopyToByteArray(InkNameString(), name, size);
}

bool InkSlotImpl::IsValid() const {
  return true;
}

std::uint32_t InkSlotImpl::ColorCode() const {
  return static_cast<std::uint32_t>(color->code);
}

std::uint32_t InkSlotImpl::InkTypeCode() const {
  return static_cast<std::uint32_t>(inkType->code);
}

std::string InkSlotImpl::InkNameString() const {
  return inkType->name + " " + color->name;
}

}  // namespace tavrin
