#include "definition/IniSnapshot.h"

#include "definition/TextConversion.h"

namespace tavrin {

IniSnapshot::IniSnapshot(const std::wstring& snapshotPath) : reader_(snapshotPath) {
  path = snapshotPath;
}

IniSnapshot::IniSnapshot(const platform::PlainCopy& copy) : reader_(copy) {
  path = WideCopy(copy.Path());
}

bool IniSnapshot::ReadString(const wchar_t* section, const wchar_t* key, std::wstring* value) {
  return ReadThrough(reader_, section, key, value);
}

std::vector<std::wstring> IniSnapshot::ListKeys(const wchar_t* section) {
  return reader_.ListKeys(section);
}

}  // namespace tavrin
