#include "definition/IniSnapshot.h"

namespace tavrin {

IniSnapshot::IniSnapshot(const std::wstring& snapshotPath) : reader_(snapshotPath) {
  path = snapshotPath;
}

bool IniSnapshot::ReadString(const wchar_t* section, const wchar_t* key, std::wstring* value) {
  return ReadThrough(reader_, section, key, value);
}

std::vector<std::wstring> IniSnapshot::ListKeys(const wchar_t* section) {
  return reader_.ListKeys(section);
}

}  // namespace tavrin
