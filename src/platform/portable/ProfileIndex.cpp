#include "platform/portable/ProfileIndex.h"

#include <cstring>
#include <utility>

#include "platform/portable/ProfileText.h"

namespace tavrin::platform {

namespace {

/// Two characters, A to Z as a to z. Those beyond Unicode's last, which no file holds, may come out
/// as anything.
std::uint64_t FoldPair(std::uint64_t pair) {
  constexpr std::uint64_t kEach = 0x0000000100000001;
  constexpr std::uint64_t kTop = kEach << 31;
  const std::uint64_t fromA = pair + (kTop - kEach * 'A');
  const std::uint64_t beyondZ = pair + (kTop - kEach * ('Z' + 1));
  return pair | (fromA & ~beyondZ & kTop) >> 26;  // bit 5 makes a letter small
}

/// Multiplying carries differences upwards alone, so the upper half comes down after each pair.
std::uint64_t Mix(std::uint64_t hash, std::uint64_t pair) {
  constexpr std::uint64_t kMultiplier = 0x9E3779B97F4A7C15;
  hash = (hash ^ FoldPair(pair)) * kMultiplier;
  return hash ^ hash >> 32;
}

/// Hashes name so that equal names (as SameName has it) of equal seeds get equal hashes.
std::uint64_t HashName(std::wstring_view name, std::uint64_t seed) {
  std::uint64_t hash = Mix(seed, 0);
  for (std::uint64_t pair = 0; name.size() >= 2; name.remove_prefix(2)) {
    static_assert(sizeof pair == 2 * sizeof(wchar_t));
    std::memcpy(&pair, name.data(), sizeof pair);
    hash = Mix(hash, pair);
  }
  return Mix(hash, name.empty() ? 0 : static_cast<std::uint32_t>(name[0]));
}

}  // namespace

ProfileIndex::ProfileIndex(std::wstring text)
    : text_(std::move(text)), seed_(reinterpret_cast<std::uintptr_t>(text_.data())) {
  AddLines();
  FillSlots();
}

std::wstring_view ProfileIndex::Find(std::wstring_view section, std::wstring_view key) const {
  const std::size_t owner = SectionNumberOf(section);
  const std::size_t number = owner == 0 ? 0 : NumberOf(owner, key);
  return number == 0 ? std::wstring_view() : entries_[number - 1].value;
}

std::vector<std::wstring> ProfileIndex::ListKeys(std::wstring_view section) const {
  std::vector<std::wstring> keys;
  const std::size_t owner = SectionNumberOf(section);
  // The keys of a section follow its header directly.
  for (std::size_t i = owner; owner != 0 && i < entries_.size() && entries_[i].owner == owner; ++i)
    keys.emplace_back(entries_[i].name);
  return keys;
}

void ProfileIndex::Add(std::size_t owner, std::wstring_view name, std::wstring_view value) {
  entries_.push_back({HashName(name, seed_ + owner), owner, name, value});
}

void ProfileIndex::AddLines() {
  entries_.reserve(text_.size() / 16);  // the lines of a definition are longer than that
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

void ProfileIndex::FillSlots() {
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
std::size_t ProfileIndex::SlotOf(std::uint64_t hash, std::size_t owner,
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

std::size_t ProfileIndex::NumberOf(std::size_t owner, std::wstring_view name) const {
  return slots_[SlotOf(HashName(name, seed_ + owner), owner, name)];
}

std::size_t ProfileIndex::SectionNumberOf(std::wstring_view name) const {
  // A definition has one section, so the first entry, a header, nearly always is the one.
  const bool isFirst = !entries_.empty() && SameName(entries_.front().name, name);
  return isFirst ? 1 : NumberOf(0, name);
}

}  // namespace tavrin::platform
