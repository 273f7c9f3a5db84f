#pragma once

#include <cstdint>
#include <functional>
#include <memory>
#include <string>
#include <string_view>

#include "platform/PlainCopy.h"

namespace tavrin::platform {

/// Reads strings of one profile (INI file) as the Windows profile functions do.
///
/// Made for a single read, or for many reads of a file that does not change while the reader
/// lives: whether a change made meanwhile is seen is up to the platform. A file that is missing or
/// cannot be read holds no sections.
class ProfileReader {
 public:
  explicit ProfileReader(const std::wstring& path);
  explicit ProfileReader(const PlainCopy& copy);
  ~ProfileReader();
  ProfileReader(const ProfileReader&) = delete;
  ProfileReader& operator=(const ProfileReader&) = delete;

  /// Copies the value of key in section into buffer and ends it with a NUL. A value longer than
  /// size - 1 characters is cut; a missing one gives the empty text.
  ///
  /// REQUIRES: section and key are not null, size is at least 1, buffer holds size characters.
  ///
  /// @return the number of characters copied, without the NUL.
  std::uint32_t Read(const wchar_t* section, const wchar_t* key, wchar_t* buffer,
                     std::uint32_t size) const;

  /// Hands take the names of the keys in section, in the order of the file.
  void ListKeys(const wchar_t* section, const std::function<void(std::wstring_view)>& take) const;

 private:
  class Source;
  std::unique_ptr<const Source> source_;
};

/// Writes key=value into section of the profile at path, creating file and section as needed. A
/// null value removes the key's line instead.
///
/// REQUIRES: section, key and path are not null.
///
/// @return false when the file could not be written; a lease that another process has on it is not
///         waited for.
bool WriteProfileValue(const wchar_t* section, const wchar_t* key, const wchar_t* value,
                       const wchar_t* path);

/// The bytes of a profile in which key has the value in section, or with a null value is not in it.
/// On every platform the key is found, and a new one placed, as the portable WriteProfileValue does
/// it; but every other byte stays as it is, line ends and the blanks round a value included.
///
/// REQUIRES: section and key are not null.
std::string EditProfile(const std::string& bytes, const wchar_t* section, const wchar_t* key,
                        const wchar_t* value);

}  // namespace tavrin::platform
