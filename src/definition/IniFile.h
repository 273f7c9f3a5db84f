#pragma once

#include <cstdint>
#include <functional>
#include <string>
#include <string_view>

namespace tavrin {

namespace platform {
class ProfileReader;
}

/// Typed reads and writes of one INI file, as the Windows profile functions see it: names without
/// regard to case, the first section and key of a name, values without surrounding blanks and
/// quotes.
///
/// A read gives false and leaves its value as it was when the key is missing, its value is empty or
/// does not convert. Values are read up to 521 characters; the rest of a longer one is cut.
///
/// Every read looks at the file as it is at that moment. The narrow operations convert their texts
/// and forward to the wide ones, so overriding those is enough. An exhausted memory leaves every
/// operation as an exception.
class IniFile {
 public:
  IniFile() = default;
  virtual ~IniFile() = default;
  IniFile(const IniFile&) = delete;
  IniFile& operator=(const IniFile&) = delete;

  /// Addresses the file at path from now on.
  ///
  /// @return whether it exists; the path is kept either way.
  virtual bool Open(const std::wstring& path);
  virtual bool Exists();
  /// Nothing is held open. Always true.
  virtual bool Close();

  virtual bool ReadInt(const wchar_t* section, const wchar_t* key, std::int32_t* value);
  virtual bool ReadDouble(const wchar_t* section, const wchar_t* key, double* value);
  /// Unlike the other reads this one always assigns value: the empty text where it gives false.
  virtual bool ReadString(const wchar_t* section, const wchar_t* key, std::wstring* value);

  virtual bool ReadInt(const std::string& section, const std::string& key, std::int32_t* value);
  virtual bool ReadDouble(const std::string& section, const std::string& key, double* value);
  virtual bool ReadString(const std::string& section, const std::string& key, std::string* value);

  /// Writes key=value into the section, creating file, section and key as needed.
  ///
  /// @return false when the file cannot be written.
  virtual bool WriteString(const wchar_t* section, const wchar_t* key, const wchar_t* value);
  virtual bool WriteString(const std::string& section, const std::string& key,
                           const std::string& value);
  /// Removes the key's line; a key that is not there is no failure.
  virtual bool DeleteKey(const wchar_t* section, const wchar_t* key);

  using TakeKey = std::function<void(std::wstring_view key)>;

  /// Hands take the names of the keys in the section. One that is listed need not have a value that
  /// can be read.
  virtual void ListKeys(const wchar_t* section, const TakeKey& take);
  virtual void ListKeys(const std::string& section, const TakeKey& take);

  /// The file that every operation addresses.
  std::wstring path;

 protected:
  /// What the wide ReadString does, on an opened reader.
  static bool ReadThrough(const platform::ProfileReader& reader, const wchar_t* section,
                          const wchar_t* key, std::wstring* value);
};

/// True when path names an existing entry of the file system, of whatever kind.
bool FileExists(const std::wstring& path);

}  // namespace tavrin
