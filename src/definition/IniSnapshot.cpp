#include "definition/IniSnapshot.h"

namespace tavrin {

IniSnapshot::IniSnapshot(const std::wstring& snapshotPath) : reader_(snapshotPath) {
  path = snapshotPath;
}

bool IniSnapshot::ReadString(const std::wstring& section, const std::wstring& key,
                             std::wstring* value) {
  return ReadThrough(reader_, section, key, value);
}

std::vector<std::wstring> IniSnapshot::ListKeys(const std::wstring& section) {
  return reader_.ListKeys(section.c_str());
}

}  // namespace tavrin
