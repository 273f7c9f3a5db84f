#include "definition/IniEdit.h"

#include "definition/WideText.h"
#include "platform/Profile.h"

namespace tavrin {

std::string EditIni(const std::string& bytes, const std::string& section, const std::string& key,
                    const std::optional<std::string>& value) {
  const WideText wideValue(value.value_or(""));
  return platform::EditProfile(bytes, WideText(section).c_str(), WideText(key).c_str(),
                               value ? wideValue.c_str() : nullptr);
}

}  // namespace tavrin
