#include "platform/Profile.h"

#include <algorithm>
#include <string>
#include <vector>

#include <windows.h>

#include "platform/windows/PlainCopyState.h"

namespace tavrin::platform {

namespace {

constexpr DWORD kLongestList = 0x80000000;

}  // namespace

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

ProfileReader::ProfileReader(const PlainCopy& copy) : ProfileReader(copy.state_->path) {
}

ProfileReader::~ProfileReader() = default;

std::uint32_t ProfileReader::Read(const wchar_t* section, const wchar_t* key, wchar_t* buffer,
                                  std::uint32_t size) const {
  return GetPrivateProfileStringW(section, key, L"", buffer, size, source_->Path());
}

void ProfileReader::ListKeys(const wchar_t* section,
                             const std::function<void(std::wstring_view)>& take) const {
  std::wstring_view name = section;  // spaces round it would be a part of it here
  name.remove_prefix(std::min(name.find_first_not_of(L' '), name.size()));
  const std::wstring asked(name.substr(0, name.find_last_not_of(L' ') + 1));
  // The lines, as asking for the names alone gives none where the first line's is empty. Each ends
  // in a NUL, the list in one more. A list that fills the buffer but for two characters has been
  // cut.
  std::vector<wchar_t> buffer(65536);
  DWORD length = 0;
  for (;;) {
    const auto size = static_cast<DWORD>(buffer.size());
    length = GetPrivateProfileSectionW(asked.c_str(), buffer.data(), size, source_->Path());
    if (length < size - 2 || size > kLongestList / 2) break;
    buffer.resize(2 * buffer.size());
  }
  for (const wchar_t* next = buffer.data(); next < buffer.data() + length;) {
    const std::wstring_view line = next;
    const std::wstring_view key = line.substr(0, line.find(L'='));
    take(key.substr(0, key.find_last_not_of(L" \t") + 1));
    next += line.size() + 1;
  }
}

bool WriteProfileValue(const wchar_t* section, const wchar_t* key, const wchar_t* value,
                       const wchar_t* path) {
  return WritePrivateProfileStringW(section, key, value, path) == 1;
}

}  // namespace tavrin::platform
