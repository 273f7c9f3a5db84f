#include "definition/IniFile.h"

#include <new>

#include "definition/TextConversion.h"
#include "definition/ValueConversion.h"
#include "definition/WideText.h"
#include "platform/Files.h"
#include "platform/Profile.h"

namespace tavrin {

namespace {

// The size in bytes of 261 wide characters on Windows, which the library has always handed over as
// a number of characters; definition files keep to 260, but up to 521 come back.
constexpr std::uint32_t kValueCharacters = 522;

}  // namespace

bool IniFile::Open(const std::wstring& newPath) {
  path = newPath;
  return Exists();
}

bool IniFile::Exists() {
  return FileExists(path);
}

bool IniFile::Close() {
  return true;
}

bool IniFile::ReadInt(const wchar_t* section, const wchar_t* key, std::int32_t* value) {
  std::wstring text;
  return ReadString(section, key, &text) && ParseInt(text, value);
}

bool IniFile::ReadDouble(const wchar_t* section, const wchar_t* key, double* value) {
  std::wstring text;
  return ReadString(section, key, &text) && ParseDouble(text, value);
}

bool IniFile::ReadString(const wchar_t* section, const wchar_t* key, std::wstring* value) {
  return ReadThrough(platform::ProfileReader(path), section, key, value);
}

bool IniFile::ReadInt(const std::string& section, const std::string& key, std::int32_t* value) {
  return ReadInt(WideText(section).c_str(), WideText(key).c_str(), value);
}

bool IniFile::ReadDouble(const std::string& section, const std::string& key, double* value) {
  return ReadDouble(WideText(section).c_str(), WideText(key).c_str(), value);
}

bool IniFile::ReadString(const std::string& section, const std::string& key, std::string* value) {
  std::wstring wide;
  if (!ReadString(WideText(section).c_str(), WideText(key).c_str(), &wide)) return false;
  if (!ToNarrow(wide, value)) throw std::bad_alloc();
  return true;
}

bool IniFile::WriteString(const wchar_t* section, const wchar_t* key, const wchar_t* value) {
  return platform::WriteProfileValue(section, key, value, path.c_str());
}

bool IniFile::WriteString(const std::string& section, const std::string& key,
                          const std::string& value) {
  return WriteString(WideText(section).c_str(), WideText(key).c_str(), WideText(value).c_str());
}

bool IniFile::DeleteKey(const wchar_t* section, const wchar_t* key) {
  return platform::WriteProfileValue(section, key, nullptr, path.c_str());
}

void IniFile::ListKeys(const wchar_t* section, const TakeKey& take) {
  platform::ProfileReader(path).ListKeys(section, take);
}

void IniFile::ListKeys(const std::string& section, const TakeKey& take) {
  ListKeys(WideText(section).c_str(), take);
}

bool IniFile::ReadThrough(const platform::ProfileReader& reader, const wchar_t* section,
                          const wchar_t* key, std::wstring* value) {
  wchar_t text[kValueCharacters];
  const std::uint32_t length = reader.Read(section, key, text, kValueCharacters);
  value->assign(text, length);
  return length != 0;
}

bool FileExists(const std::wstring& path) {
  return platform::FileExists(path);
}

}  // namespace tavrin
