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

void IniSnapshot::ListKeys(const wchar_t* section, const TakeKey& take) {
  reader_.ListKeys(section, take);
}

}  // namespace tavrin
