#include "ink/NumberedInkSlot.h"

#include "definition/ValueConversion.h"
#include "util/TextUtilities.h"

namespace tavrin {

bool NumberedInkSlot::GetColorCode(std::uint32_t* code) const {
  *code = ColorCode();
  return true;
}

bool NumberedInkSlot::GetInkTypeCode(std::uint32_t* code) const {
  *code = InkTypeCode();
  return true;
}

bool NumberedInkSlot::GetInkId(char** id, std::int32_t* size) const {
  return CopyToByteArray(InkIdString(), id, size);
}

bool NumberedInkSlot::GetInkIdNumber(std::uint32_t* number) const {
  std::int32_t value = 0;
  if (!ParseInt(InkIdString(), &value)) return false;
  *number = static_cast<std::uint32_t>(value);
  return true;
}

std::string NumberedInkSlot::InkIdString() const {
  std::string inkType;
  std::string color;
  FormatLastThreeDigits(static_cast<std::int32_t>(InkTypeCode()), &inkType);
  FormatLastThreeDigits(static_cast<std::int32_t>(ColorCode()), &color);
  return inkType + color;
}

}  // namespace tavrin
