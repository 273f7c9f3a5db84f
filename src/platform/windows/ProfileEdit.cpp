#include "platform/portable/ProfileEdit.h"

#include <string>
#include <string_view>

#include <windows.h>

#include "platform/Profile.h"

namespace tavrin::platform {

namespace {

/// The user's code page, as the profile functions have it.
class CodePageEncoding {
 public:
  using Unit = char;

  static constexpr std::size_t kMarkLength = 0;

  static std::string FromBytes(std::string bytes) { return bytes; }
  static std::string ToBytes(std::string text) { return text; }

  static void AppendWide(std::string_view text, std::wstring* wide) {
    const auto size = static_cast<int>(text.size());
    const int length = MultiByteToWideChar(CP_ACP, 0, text.data(), size, nullptr, 0);
    const std::size_t before = wide->size();
    wide->resize(before + static_cast<std::size_t>(length));
    MultiByteToWideChar(CP_ACP, 0, text.data(), size, wide->data() + before, length);
  }

  static void AppendUnits(std::wstring_view wide, std::string* text) {
    const auto size = static_cast<int>(wide.size());
    const int length =
        WideCharToMultiByte(CP_ACP, 0, wide.data(), size, nullptr, 0, nullptr, nullptr);
    const std::size_t before = text->size();
    text->resize(before + static_cast<std::size_t>(length));
    WideCharToMultiByte(CP_ACP, 0, wide.data(), size, text->data() + before, length, nullptr,
                        nullptr);
  }
};

}  // namespace

std::string EditProfile(const std::string& bytes, const wchar_t* section, const wchar_t* key,
                        const wchar_t* value) {
  return EditInAnyEncoding<CodePageEncoding>(bytes, StripSpaces(section), StripSpaces(key), value);
}

}  // namespace tavrin::platform
