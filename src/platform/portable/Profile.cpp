#include "platform/Profile.h"

#include <algorithm>
#include <cerrno>
#include <new>
#include <string_view>
#include <utility>

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include "platform/TextEncoding.h"
#include "platform/portable/ProfileText.h"

namespace tavrin::platform {

namespace {

/// A pipe or device behind the path is to be seen without waiting for it.
constexpr int kOpenFlags = O_NONBLOCK | O_NOCTTY | O_CLOEXEC;

class Descriptor {
 public:
  Descriptor(const std::string& path, int flags) : value_(open(path.c_str(), flags, 0666)) {}
  ~Descriptor() {
    if (value_ >= 0) close(value_);
  }
  Descriptor(const Descriptor&) = delete;
  Descriptor& operator=(const Descriptor&) = delete;

  int Get() const { return value_; }
  bool Close() { return close(std::exchange(value_, -1)) == 0; }

 private:
  int value_;
};

std::string NarrowPath(const std::wstring& path) {
  std::string narrow;
  if (!ToNarrow(path, &narrow)) throw std::bad_alloc();
  return narrow;
}

/// Reads the regular file at path.
///
/// @return 0 or the error number; bytes is then empty.
int ReadFile(const std::string& path, std::string* bytes) {
  const Descriptor file(path, O_RDONLY | kOpenFlags);
  struct stat status = {};
  if (file.Get() < 0 || fstat(file.Get(), &status) != 0) return errno;
  if (!S_ISREG(status.st_mode)) return EINVAL;
  if (static_cast<std::uintmax_t>(status.st_size) > bytes->max_size()) throw std::bad_alloc();
  bytes->resize(static_cast<std::size_t>(status.st_size));
  std::size_t length = 0;
  while (length < bytes->size()) {
    const ssize_t n = read(file.Get(), bytes->data() + length, bytes->size() - length);
    if (n < 0 && errno == EINTR) continue;
    if (n < 0) {
      bytes->clear();
      return errno;
    }
    if (n == 0) break;
    length += static_cast<std::size_t>(n);
  }
  bytes->resize(length);
  return 0;
}

bool WriteAt(int file, std::string_view bytes, std::size_t offset) {
  while (!bytes.empty()) {
    const ssize_t n = pwrite(file, bytes.data(), bytes.size(), static_cast<off_t>(offset));
    if (n < 0 && errno == EINTR) continue;
    if (n <= 0) return false;
    bytes.remove_prefix(static_cast<std::size_t>(n));
    offset += static_cast<std::size_t>(n);
  }
  return true;
}

/// Turns the content of the file at path from before into after. A write that fails half-way, for
/// instance on a full disk, is taken back.
bool UpdateFile(const std::string& path, std::string_view before, std::string_view after) {
  if (before == after) return true;
  struct stat status = {};
  const bool isNew = stat(path.c_str(), &status) != 0;
  Descriptor file(path, O_WRONLY | O_CREAT | kOpenFlags);
  if (file.Get() < 0 || fstat(file.Get(), &status) != 0 || !S_ISREG(status.st_mode)) return false;
  const auto kept = static_cast<std::size_t>(
      std::mismatch(before.begin(), before.end(), after.begin(), after.end()).first -
      before.begin());
  const auto put = [&](std::string_view content) {
    return WriteAt(file.Get(), content.substr(kept), kept) &&
           ftruncate(file.Get(), static_cast<off_t>(content.size())) == 0;
  };
  if (put(after)) return file.Close();
  put(before);
  if (isNew) unlink(path.c_str());
  return false;
}

/// The line of a key, or the empty place where that line is to go.
template <typename Unit>
struct Place {
  std::size_t begin = 0;
  std::size_t end = 0;
  bool hasSection = false;
  bool hasKey = false;
  bool hasValue = false;                  ///< false for a line without '='
  std::basic_string_view<Unit> key = {};  ///< as the file spells it
  std::wstring value = {};                ///< with its quotes
};

/// A new key goes behind the last one of its section, or else behind the section's comments.
template <typename Encoding, typename Unit = typename Encoding::Unit>
Place<Unit> FindPlace(std::basic_string_view<Unit> text, std::wstring_view section,
                      std::wstring_view key, Encoding* encoding) {
  Place<Unit> place{text.size(), text.size()};
  bool hasKeys = false;
  std::wstring wide;
  std::basic_string_view<Unit> rest = text.substr(Encoding::kMarkLength);
  while (!rest.empty()) {
    const std::size_t begin = text.size() - rest.size();
    const std::basic_string_view<Unit> units = TakeLine(&rest);
    const std::size_t end = text.size() - rest.size();
    wide.clear();
    encoding->AppendWide(units, &wide);
    const ProfileLine line = ParseLine(wide);
    if (line.kind == ProfileLine::Kind::Header) {
      if (place.hasSection) break;
      if (SameName(line.name, section)) place = {end, end, true};
    } else if (place.hasSection && line.IsKey() && SameName(line.name, key)) {
      const bool hasValue = line.kind == ProfileLine::Kind::Key;
      const auto name = Spelled(units.substr(0, units.find('=')));
      return {begin, end, true, true, hasValue, name, std::wstring(line.value)};
    } else if (place.hasSection && (line.IsKey() || (line.IsComment() && !hasKeys))) {
      hasKeys = line.IsKey();
      place.begin = place.end = end;
    }
  }
  return place;
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

}  // namespace

/// The sections and keys of a text, found by hash. Of equal names the first counts.
class ProfileReader::Source {
 public:
  explicit Source(std::wstring text);
  Source(const Source&) = delete;
  Source& operator=(const Source&) = delete;

  /// @return the value, empty also when there is no such key.
  std::wstring_view Find(std::wstring_view section, std::wstring_view key) const;

  std::vector<std::wstring> ListKeys(std::wstring_view section) const;

 private:
  /// Entries are numbered from 1; 0 stands for none, and for the owner of the sections.
  struct Entry {
    std::uint64_t hash;
    std::size_t owner;  ///< the number of a key's section
    std::wstring_view name;
    std::wstring_view value;
  };

  void Add(std::size_t owner, std::wstring_view name, std::wstring_view value);
  void AddLines();
  void FillSlots();
  std::size_t SlotOf(std::uint64_t hash, std::size_t owner, std::wstring_view name) const;
  std::size_t NumberOf(std::size_t owner, std::wstring_view name) const;
  std::size_t SectionNumberOf(std::wstring_view name) const;

  std::wstring text_;
  /// Where the text lies differs from process to process: no file can aim at equal hashes.
  std::uint64_t seed_;
  std::vector<Entry> entries_;
  std::vector<std::size_t> slots_;  ///< of entry numbers; a power of two, at most half of it taken
};

ProfileReader::Source::Source(std::wstring text)
    : text_(std::move(text)), seed_(reinterpret_cast<std::uintptr_t>(text_.data())) {
  AddLines();
  FillSlots();
}

std::wstring_view ProfileReader::Source::Find(std::wstring_view section,
                                              std::wstring_view key) const {
  const std::size_t owner = SectionNumberOf(section);
  const std::size_t number = owner == 0 ? 0 : NumberOf(owner, key);
  return number == 0 ? std::wstring_view() : entries_[number - 1].value;
}

std::vector<std::wstring> ProfileReader::Source::ListKeys(std::wstring_view section) const {
  std::vector<std::wstring> keys;
  const std::size_t owner = SectionNumberOf(section);
  // The keys of a section follow its header directly.
  for (std::size_t i = owner; owner != 0 && i < entries_.size() && entries_[i].owner == owner; ++i)
    keys.emplace_back(entries_[i].name);
  return keys;
}

void ProfileReader::Source::Add(std::size_t owner, std::wstring_view name,
                                std::wstring_view value) {
  entries_.push_back({HashName(name, seed_ + owner), owner, name, value});
}

void ProfileReader::Source::AddLines() {
  entries_.reserve(text_.size() / 32);  // the lines of a definition are shorter than that
  std::size_t section = 0;
  std::wstring_view rest = text_;
  while (!rest.empty()) {
    const ProfileLine line = ParseLine(TakeLine(&rest));
    if (line.kind == ProfileLine::Kind::Header) {
      Add(0, line.name, {});
      section = entries_.size();
    } else if (line.IsKey() && section != 0) {
      Add(section, line.name, ReadableValue(line.value));
    }
  }
}

void ProfileReader::Source::FillSlots() {
  std::size_t size = 2;
  while (size < 2 * entries_.size())
    size *= 2;
  slots_.resize(size);
  for (std::size_t i = 0; i < entries_.size(); ++i) {
    const Entry& entry = entries_[i];
    std::size_t& number = slots_[SlotOf(entry.hash, entry.owner, entry.name)];
    if (number == 0) number = i + 1;
  }
}

/// @return the slot of that entry, or the free one in its place.
std::size_t ProfileReader::Source::SlotOf(std::uint64_t hash, std::size_t owner,
                                          std::wstring_view name) const {
  const std::size_t mask = slots_.size() - 1;
  std::size_t slot = static_cast<std::size_t>(hash) & mask;
  while (slots_[slot] != 0) {
    const Entry& entry = entries_[slots_[slot] - 1];
    if (entry.hash == hash && entry.owner == owner && SameName(entry.name, name)) break;
    slot = (slot + 1) & mask;
  }
  return slot;
}

std::size_t ProfileReader::Source::NumberOf(std::size_t owner, std::wstring_view name) const {
  return slots_[SlotOf(HashName(name, seed_ + owner), owner, name)];
}

std::size_t ProfileReader::Source::SectionNumberOf(std::wstring_view name) const {
  // A definition has one section, so the first entry, a header, nearly always is the one.
  const bool isFirst = !entries_.empty() && SameName(entries_.front().name, name);
  return isFirst ? 1 : NumberOf(0, name);
}

ProfileReader::ProfileReader(const std::wstring& path) {
  std::string bytes;
  ReadFile(NarrowPath(path), &bytes);
  source_ = std::make_unique<const Source>(DecodeProfile(bytes));
}

ProfileReader::~ProfileReader() = default;

std::uint32_t ProfileReader::Read(const wchar_t* section, const wchar_t* key, wchar_t* buffer,
                                  std::uint32_t size) const {
  const std::wstring_view value =
      CutToUnits(source_->Find(StripSpaces(section), StripSpaces(key)), size - 1);
  value.copy(buffer, value.size());
  buffer[value.size()] = L'\0';
  return static_cast<std::uint32_t>(value.size());
}

std::vector<std::wstring> ProfileReader::ListKeys(const wchar_t* section) const {
  return source_->ListKeys(StripSpaces(section));
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
