#include "platform/portable/ProfileIndex.h"

#include <cstring>
#include <type_traits>
#include <utility>

#include "platform/portable/LetterCase.h"
#include "platform/portable/ProfileText.h"

namespace tavrin::platform {

namespace {

/// Multiplying carries differences upwards alone, so the upper half comes down each time, and
/// twice, so that no later word can take a difference back whose way it knows.
Word Mix(Word hash, Word word) {
  constexpr Word kMultiplier = 0x9E3779B97F4A7C15;
  hash = (hash ^ word) * kMultiplier;
  hash = (hash ^ hash >> 32) * kMultiplier;
  return hash ^ hash >> 32;
}

/// Hashes name so that equal names (as SameName has it) of equal seeds get equal hashes.
template <typename Char>
std::uint64_t HashName(std::basic_string_view<Char> name, std::uint64_t seed) {
  constexpr std::size_t kLanes = sizeof(Word) / sizeof(Char);
  Word hash = seed;
  for (Word word = 0; name.size() >= kLanes; name.remove_prefix(kLanes)) {
    std::memcpy(&word, name.data(), sizeof word);
    hash = Mix(hash, FoldLanes<Char>(word));
  }
  Word rest = 0;
  for (const Char c : name)
    rest = rest << 8 * sizeof c | static_cast<std::make_unsigned_t<Char>>(c);
  return Mix(hash, FoldLanes<Char>(rest));
}

}  // namespace

template <typename Char>
ProfileIndex<Char>::ProfileIndex(std::basic_string<Char> text)
    : text_(std::move(text)), seed_(reinterpret_cast<std::uintptr_t>(text_.data())) {
  AddLines();
  FillSlots();
}

template <typename Char>
auto ProfileIndex<Char>::Find(View section, View key) const -> View {
  const std::size_t owner = SectionNumberOf(section);
  const std::size_t number = owner == 0 ? 0 : NumberOf(owner, key);
  return number == 0 ? View() : entries_[number - 1].value;
}

template <typename Char>
void ProfileIndex<Char>::Add(std::size_t owner, View name, View value) {
  entries_.push_back({HashName(name, seed_ + owner), owner, name, value});
}

template <typename Char>
void ProfileIndex<Char>::AddLines() {
  entries_.reserve(text_.size() / 16);  // the lines of a definition are longer than that
  std::size_t section = 0;
  View rest = text_;
  while (!rest.empty()) {
    const ProfileLine<Char> line = ParseLine(TakeLine(&rest));
    if (line.IsHeader()) {
      Add(0, line.name, {});
      section = entries_.size();
    } else if (line.IsKey() && section != 0) {
      Add(section, line.name, ReadableValue(line.value));
    }
  }
}

template <typename Char>
void ProfileIndex<Char>::FillSlots() {
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
template <typename Char>
std::size_t ProfileIndex<Char>::SlotOf(std::uint64_t hash, std::size_t owner, View name) const {
  const std::size_t mask = slots_.size() - 1;
  std::size_t slot = static_cast<std::size_t>(hash) & mask;
  while (slots_[slot] != 0) {
    const Entry& entry = entries_[slots_[slot] - 1];
    if (entry.hash == hash && entry.owner == owner && SameName(entry.name, name)) break;
    slot = (slot + 1) & mask;
  }
  return slot;
}

template <typename Char>
std::size_t ProfileIndex<Char>::NumberOf(std::size_t owner, View name) const {
  return slots_[SlotOf(HashName(name, seed_ + owner), owner, name)];
}

template <typename Char>
std::size_t ProfileIndex<Char>::SectionNumberOf(View name) const {
  // A definition has one section, so the first entry, a header, nearly always is the one.
  const bool isFirst = !entries_.empty() && SameName(entries_.front().name, name);
  return isFirst ? 1 : NumberOf(0, name);
}

template class ProfileIndex<char>;
template class ProfileIndex<wchar_t>;

}  // namespace tavrin::platform
