#include "definition/IniFile.h"

#include "definition/TextConversion.h"
#include "definition/ValueConversion.h"
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

bool IniFile::ReadInt(const std::wstring& section, const std::wstring& key, std::int32_t* value) {
  std::wstring text;
  return ReadString(section, key, &text) && ParseInt(text, value);
}

bool IniFile::ReadDouble(const std::wstring& section, const std::wstring& key, double* value) {
  std::wstring text;
  return ReadString(section, key, &text) && ParseDouble(text, value);
}

bool IniFile::ReadString(const std::wstring& section, const std::wstring& key,
                         std::wstring* value) {
  return ReadThrough(platform::ProfileReader(path), section, key, value);
}

bool IniFile::ReadInt(const std::string& section, const std::string& key, std::int32_t* value) {
  return ReadInt(WideCopy(section), WideCopy(key), value);
}

bool IniFile::ReadDouble(const std::string& section, const std::string& key, double* value) {
  return ReadDouble(WideCopy(section), WideCopy(key), value);
}

bool IniFile::ReadString(const std::string& section, const std::string& key, std::string* value) {
  std::wstring wide;
  return ReadString(WideCopy(section), WideCopy(key), &wide) && ToNarrow(wide, value);
}

bool IniFile::WriteString(const std::wstring& section, const std::wstring& key,
                          const std::wstring& value) {
  return platform::WriteProfileValue(section.c_str(), key.c_str(), value.c_str(), path.c_str());
}

bool IniFile::WriteString(const std::string& section, const std::string& key,
                          const std::string& value) {
  return WriteString(WideCopy(section), WideCopy(key), WideCopy(value));
}

bool IniFile::DeleteKey(const std::wstring& section, const std::wstring& key) {
  return platform::WriteProfileValue(section.c_str(), key.c_str(), nullptr, path.c_str());
}

std::vector<std::wstring> IniFile::ListKeys(const std::wstring& section) {
  return platform::ProfileReader(path).ListKeys(section.c_str());
}

bool IniFile::ReadThrough(const platform::ProfileReader& reader, const std::wstring& section,
                          const std::wstring& key, std::wstring* value) {
  wchar_t text[kValueCharacters];
  const std::uint32_t length = reader.Read(section.c_str(), key.c_str(), text, kValueCharacters);
  value->assign(text, length);
  return length != 0;
}

bool FileExists(const std::wstring& path) {
  return platform::FileExists(path);
}

}  // namespace tavrin
