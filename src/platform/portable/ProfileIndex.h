#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace tavrin::platform {

/// The sections and keys of a text, found by hash. Of equal names the first counts.
///
/// Made for char, which takes a text of ASCII as it lies in its file, and for wchar_t.
template <typename Char>
class ProfileIndex {
 public:
  using View = std::basic_string_view<Char>;

  explicit ProfileIndex(std::basic_string<Char> text);
  ProfileIndex(const ProfileIndex&) = delete;
  ProfileIndex& operator=(const ProfileIndex&) = delete;

  /// @return the value, empty also when there is no such key.
  View Find(View section, View key) const;

  /// Hands take the names of the keys in section, in the order of the text.
  template <typename Take>
  void ListKeys(View section, Take take) const {
    // The keys of a section follow its header directly.
    const std::size_t owner = SectionNumberOf(section);
    for (std::size_t i = owner; owner != 0 && i < entries_.size() && entries_[i].owner == owner;
         ++i)
      take(entries_[i].name);
  }

 private:
  /// Entries are numbered from 1; 0 stands for none, and for the owner of the sections.
  struct Entry {
    std::uint64_t hash;
    std::size_t owner;  ///< the number of a key's section
    View name;
    View value;
  };

  void Add(std::size_t owner, View name, View value);
  void AddLines();
  void FillSlots();
  std::size_t SlotOf(std::uint64_t hash, std::size_t owner, View name) const;
  std::size_t NumberOf(std::size_t owner, View name) const;
  std::size_t SectionNumberOf(View name) const;

  std::basic_string<Char> text_;
  /// Where the text lies differs from process to process, so that no file can aim at equal hashes.
  std::uint64_t seed_;
  std::vector<Entry> entries_;
  std::vector<std::size_t> slots_;  ///< of entry numbers; a power of two, at most half of it taken
};

extern template class ProfileIndex<char>;
extern template class ProfileIndex<wchar_t>;

}  // namespace tavrin::platform
