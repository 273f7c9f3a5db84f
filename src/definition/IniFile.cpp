#include "definition/IniFile.h"

#include <new>

#include "definition/TextConversion.h"
#include "definition/ValueConversion.h"
#include "platform/Files.h"
#include "platform/Profile.h"

namespace tavrin {

namespace {

// The size in bytes of 261 wide characters on Windows, which the library has always handed over as
// a number of characters; definition files keep to 260, but up to 521 come back.
constexpr std::uint32_t kValueCharacters = 522;

/// WideCopy for names: an exhausted memory must not make a key look like a missing one.
std::wstring WideName(const std::string& narrow) {
  std::wstring wide;
  if (!ToWide(narrow, &wide)) throw std::bad_alloc();
  return wide;
}

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
  return ReadInt(WideSection(section), WideName(key), value);
}

bool IniFile::ReadDouble(const std::string& section, const std::string& key, double* value) {
  return ReadDouble(WideSection(section), WideName(key), value);
}

bool IniFile::ReadString(const std::string& section, const std::string& key, std::string* value) {
  std::wstring wide;
  if (!ReadString(WideSection(section), WideName(key), &wide)) return false;
  if (!ToNarrow(wide, value)) throw std::bad_alloc();
  return true;
}

bool IniFile::WriteString(const std::wstring& section, const std::wstring& key,
                          const std::wstring& value) {
  return platform::WriteProfileValue(section.c_str(), key.c_str(), value.c_str(), path.c_str());
}

bool IniFile::WriteString(const std::string& section, const std::string& key,
                          const std::string& value) {
  return WriteString(WideName(section), WideName(key), WideName(value));
}

bool IniFile::DeleteKey(const std::wstring& section, const std::wstring& key) {
  return platform::WriteProfileValue(section.c_str(), key.c_str(), nullptr, path.c_str());
}

std::vector<std::wstring> IniFile::ListKeys(const std::wstring& section) {
  return platform::ProfileReader(path).ListKeys(section.c_str());
}

std::vector<std::wstring> IniFile::ListKeys(const std::string& section) {
  return ListKeys(WideName(section));
}

const std::wstring& IniFile::WideSection(const std::string& section) {
  if (section != section_) {
    wideSection_ = WideName(section);
    section_ = section;
  }
  return wideSection_;
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
