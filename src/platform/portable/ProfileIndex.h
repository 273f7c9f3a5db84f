#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace tavrin::platform {

/// The sections and keys of a text, found by hash. Of equal names the first counts.
class ProfileIndex {
 public:
  explicit ProfileIndex(std::wstring text);
  ProfileIndex(const ProfileIndex&) = delete;
  ProfileIndex& operator=(const ProfileIndex&) = delete;

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
  /// Where the text lies differs from process to process, so that no file can aim at equal hashes.
  std::uint64_t seed_;
  std::vector<Entry> entries_;
  std::vector<std::size_t> slots_;  ///< of entry numbers; a power of two, at most half of it taken
};

}  // namespace tavrin::platform
