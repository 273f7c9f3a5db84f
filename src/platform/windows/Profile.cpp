#include "platform/Profile.h"

#include <windows.h>

namespace tavrin::platform {

class ProfileReader::Source {
 public:
  explicit Source(const std::wstring& path) : path_(path) {}

  const wchar_t* Path() const { return path_.c_str(); }

 private:
  std::wstring path_;
};

ProfileReader::ProfileReader(const std::wstring& path)
    : source_(std::make_unique<const Source>(path)) {
}

ProfileReader::~ProfileReader() = default;

std::uint32_t ProfileReader::Read(const wchar_t* section, const wchar_t* key, wchar_t* buffer,
                                  std::uint32_t size) const {
  return GetPrivateProfileStringW(section, key, L"", buffer, size, source_->Path());
}

bool WriteProfileValue(const wchar_t* section, const wchar_t* key, const wchar_t* value,
                       const wchar_t* path) {
  return WritePrivateProfileStringW(section, key, value, path) == 1;
}

}  // namespace tavrin::platform
