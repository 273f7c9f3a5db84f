#include "platform/Profile.h"

#include <algorithm>
#include <cerrno>
#include <new>
#include <string_view>
#include <type_traits>
#include <utility>
#include <variant>

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include "platform/TextEncoding.h"
#include "platform/portable/Ascii.h"
#include "platform/portable/AskedName.h"
#include "platform/portable/Descriptor.h"
#include "platform/portable/NarrowEncoding.h"
#include "platform/portable/PlainCopyState.h"
#include "platform/portable/ProfileEdit.h"
#include "platform/portable/ProfileIndex.h"
#include "platform/portable/ProfileText.h"

namespace tavrin::platform {

namespace {

std::string NarrowPath(const std::wstring& path) {
  std::string narrow;
  if (!ToNarrow(path, &narrow)) throw std::bad_alloc();
  return narrow;
}

/// Reads size bytes from the file, fewer where it ends.
///
/// @return 0 or the error number; bytes is then empty.
int ReadFile(const Descriptor& file, std::uint64_t size, std::string* bytes) {
  if (size > bytes->max_size()) throw std::bad_alloc();
  bytes->resize(static_cast<std::size_t>(size));
  std::size_t length = 0;
  const int error = ReadUpTo(file, bytes->data(), bytes->size(), &length) ? 0 : errno;
  bytes->resize(error == 0 ? length : 0);
  return error;
}

/// The same for the whole of the regular file at path.
int ReadFile(const std::string& path, std::string* bytes) {
  std::uint64_t size = 0;
  const Descriptor file = OpenRegularFile(path, &size);
  return file.IsOpen() ? ReadFile(file, size, bytes) : errno;
}

/// Turns the content of the file at path from before into after. A write that fails half-way, for
/// instance on a full disk, is taken back.
bool UpdateFile(const std::string& path, std::string_view before, std::string_view after) {
  if (before == after) return true;
  struct stat status = {};
  const bool isNew = stat(path.c_str(), &status) != 0;
  Descriptor file(path, O_WRONLY | O_CREAT | O_NONBLOCK, 0666);
  if (!file.IsOpen() || fstat(file.Get(), &status) != 0 || !S_ISREG(status.st_mode)) return false;
  const auto kept = static_cast<std::size_t>(
      std::mismatch(before.begin(), before.end(), after.begin(), after.end()).first -
      before.begin());
  const auto put = [&](std::string_view content) {
    return WriteAt(file, content.substr(kept), kept) &&
           ftruncate(file.Get(), static_cast<off_t>(content.size())) == 0;
  };
  if (put(after)) return file.Close();
  put(before);
  if (isNew) unlink(path.c_str());
  return false;
}

/// The bytes of a profile after key is set to value, or removed if value is null.
template <typename Encoding>
std::string Edit(const std::string& bytes, std::wstring_view section, std::wstring_view key,
                 const wchar_t* value) {
  using Unit = typename Encoding::Unit;
  Encoding encoding;
  std::basic_string<Unit> text = Encoding::FromBytes(bytes);
  const Place<Unit> place = FindPlace(std::basic_string_view<Unit>(text), section, key, &encoding);
  const bool isUnchanged =
      value == nullptr ? !place.hasKey : place.hasValue && place.value == value;
  if (isUnchanged) return bytes;
  std::basic_string<Unit> lines;
  if (value != nullptr) {
    lines = place.key;
    std::wstring wide;
    if (!place.hasKey && place.begin > 0 && text[place.begin - 1] != '\n') wide.append(L"\r\n");
    if (!place.hasSection) wide.append(L"[").append(section).append(L"]\r\n");
    if (!place.hasKey) wide.append(key);
    encoding.AppendUnits(wide.append(L"=").append(value).append(L"\r\n"), &lines);
  }
  text.replace(place.begin, place.end - place.begin, lines);
  const std::size_t incomplete = bytes.size() % sizeof(Unit);
  return Encoding::ToBytes(text).append(bytes, bytes.size() - incomplete, incomplete);
}

/// What ProfileReader::Read does.
template <typename Char>
std::uint32_t ReadValue(const ProfileIndex<Char>& index, const wchar_t* section, const wchar_t* key,
                        wchar_t* buffer, std::uint32_t size) {
  const auto found = index.Find(AskedName<Char>(section).View(), AskedName<Char>(key).View());
  const auto value = CutToUnits(found, size - 1);
  *std::copy(value.begin(), value.end(), buffer) = L'\0';
  return static_cast<std::uint32_t>(value.size());
}

/// What ProfileReader::ListKeys does.
template <typename Char>
void ListNames(const ProfileIndex<Char>& index, const wchar_t* section,
               const std::function<void(std::wstring_view)>& take) {
  std::wstring wide;
  index.ListKeys(AskedName<Char>(section).View(), [&](const auto& name) {
    wide.clear();
    AppendAsIs(name, &wide);
    take(wide);
  });
}

}  // namespace

class ProfileReader::Source {
 public:
  explicit Source(std::string bytes) : index_(IndexOf(std::move(bytes))) {}

  /// Calls use with the index of the file's text.
  template <typename Use>
  auto With(Use use) const {
    return std::visit(use, index_);
  }

 private:
  using Index = std::variant<ProfileIndex<char>, ProfileIndex<wchar_t>>;

  static Index IndexOf(std::string bytes) {
    if (IsAscii<char>(bytes)) return Index(std::in_place_index<0>, std::move(bytes));
    return Index(std::in_place_index<1>, DecodeProfile(bytes));
  }

  Index index_;
};

ProfileReader::ProfileReader(const std::wstring& path) {
  std::string bytes;
  ReadFile(NarrowPath(path), &bytes);
  source_ = std::make_unique<const Source>(std::move(bytes));
}

ProfileReader::ProfileReader(const PlainCopy& copy) {
  std::string bytes;
  ReadFile(copy.state_->file, copy.state_->size, &bytes);
  source_ = std::make_unique<const Source>(std::move(bytes));
}

ProfileReader::~ProfileReader() = default;

std::uint32_t ProfileReader::Read(const wchar_t* section, const wchar_t* key, wchar_t* buffer,
                                  std::uint32_t size) const {
  return source_->With(
      [&](const auto& index) { return ReadValue(index, section, key, buffer, size); });
}

void ProfileReader::ListKeys(const wchar_t* section,
                             const std::function<void(std::wstring_view)>& take) const {
  source_->With([&](const auto& index) { ListNames(index, section, take); });
}

bool WriteProfileValue(const wchar_t* section, const wchar_t* key, const wchar_t* value,
                       const wchar_t* path) {
  const std::string file = NarrowPath(path);
  std::string before;
  const int error = ReadFile(file, &before);
  if (error != 0 && error != ENOENT) return false;
  const auto edit = Utf16Encoding::HasMark(before) ? Edit<Utf16Encoding> : Edit<NarrowEncoding>;
  return UpdateFile(file, before, edit(before, StripSpaces(section), StripSpaces(key), value));
}

}  // namespace tavrin::platform
