#include "platform/portable/ProfileEdit.h"

#include "platform/Profile.h"
#include "platform/portable/NarrowEncoding.h"

namespace tavrin::platform {

std::string EditProfile(const std::string& bytes, const wchar_t* section, const wchar_t* key,
                        const wchar_t* value) {
  return EditInAnyEncoding<NarrowEncoding>(bytes, StripSpaces(section), StripSpaces(key), value);
}

}  // namespace tavrin::platform
