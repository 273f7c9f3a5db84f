#pragma once

#include <string>

#include "definition/IniFile.h"
#include "platform/Profile.h"

namespace tavrin {

/// An IniFile for reading many keys of a file that does not change meanwhile: the portable platform
/// reads the file once instead of once a key.
class IniSnapshot : public IniFile {
 public:
  explicit IniSnapshot(const std::wstring& snapshotPath);
  /// Reads the copy as it was written, whatever becomes of its path.
  explicit IniSnapshot(const platform::PlainCopy& copy);

  using IniFile::ReadString;
  bool ReadString(const wchar_t* section, const wchar_t* key, std::wstring* value) override;
  using IniFile::ListKeys;
  void ListKeys(const wchar_t* section, const TakeKey& take) override;

 private:
  platform::ProfileReader reader_;
};

}  // namespace tavrin
