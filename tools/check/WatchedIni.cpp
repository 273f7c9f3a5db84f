#include "check/WatchedIni.h"

#include "definition/TextConversion.h"

namespace tavrin::tool {

namespace {

/// Completes the record of the text that a number was read from.
template <typename Value>
bool Note(WatchedRead* read, WatchedRead::Kind kind, bool converted, const Value* value) {
  read->kind = kind;
  read->converted = converted;
  if (converted) read->number = *value;
  return converted;
}

}  // namespace

bool WatchedIni::ReadInt(const wchar_t* section, const wchar_t* key, std::int32_t* value) {
  const bool converted = IniSnapshot::ReadInt(section, key, value);
  return Note(&reads_.back(), WatchedRead::Kind::Integer, converted, value);
}

bool WatchedIni::ReadDouble(const wchar_t* section, const wchar_t* key, double* value) {
  const bool converted = IniSnapshot::ReadDouble(section, key, value);
  return Note(&reads_.back(), WatchedRead::Kind::Number, converted, value);
}

bool WatchedIni::ReadString(const wchar_t* section, const wchar_t* key, std::wstring* value) {
  const bool found = IniSnapshot::ReadString(section, key, value);
  reads_.push_back({NarrowCopy(key), WatchedRead::Kind::Text, found, false, *value, 0.0});
  return found;
}

}  // namespace tavrin::tool
