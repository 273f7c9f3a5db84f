#include "check/Reading.h"

#include <algorithm>
#include <string_view>

#include "check/CopyToRead.h"
#include "definition/PrintModes.h"
#include "definition/PrinterKeys.h"
#include "definition/TextConversion.h"
#include "keys/KeyFacts.h"

namespace tavrin::tool {

namespace {

/// Asks the reading code, as platforms differ in it.
bool IsKnown(const TextFormat& format, const Bytes& plain) {
  if (format.markLength == 0 && format.unitLength == 1) return true;
  Bytes probe(plain.begin(), plain.begin() + static_cast<std::ptrdiff_t>(format.markLength));
  for (const char c : std::string_view("[printer]\nVersion=1\n")) {
    probe.resize(probe.size() + format.unitLength);
    probe[probe.size() - format.unitLength + format.lowByte] = static_cast<unsigned char>(c);
  }
  const CopyToRead copy(probe);
  bool isKnown = false;
  IniSnapshot(copy).ListKeys(kPrinterSection, [&](std::wstring_view) { isKnown = true; });
  return isKnown;
}

LineIndex IndexOf(const Bytes& plain) {
  const TextFormat format = TextFormat::Of(plain);
  return LineIndex(plain, format, IsKnown(format, plain));
}

/// Whether the read got what the line says, or the start of it.
bool IsReadOf(const WatchedRead& read, const std::string& value) {
  constexpr std::size_t kModulus = 0x10000;  // of the length of a value
  if (!read.found) return value.empty() || value.size() >= kModulus;
  const std::string text = PlainPart(read.text);
  return PlainPart(value).compare(0, text.size(), text) == 0;
}

}  // namespace

Reading::Reading(const Bytes& plainDefinition)
    : plain(plainDefinition), lines(IndexOf(plain)), knownKeys(ListKnownKeys()) {
  const CopyToRead copy(plain);
  WatchedIni ini(copy);
  loads = config->ParseOpened(ini);
  if (!loads) {
    // Nothing behind the version was read, and its keys shall not all look unknown.
    config->Version = "?";
    config->ParseOpened(ini);
  }
  for (const WatchedRead& read : ini.Reads()) {
    if (byKey.emplace(Folded(read.key), reads.size()).second) reads.push_back(read);
  }
  for (const WatchedRead& read : reads) {
    std::int32_t number = 0;
    const char* governor = FactsOf(KnownKeyOf(read.key, &number)->Shape()).governor;
    if (governor != nullptr) numbersAskedFor.emplace(governor, number);
  }
  ini.ListKeys(kPrinterSection, [&](std::wstring_view key) {
    listedKeys.insert(Folded(NarrowCopy(std::wstring(key))));
  });
  ReadModeList(ini, &modes);
  if (!modes.empty()) ReadLimitationModeList(ini, &limitationModes);
}

const WatchedRead* Reading::Find(const std::string& key) const {
  const auto found = byKey.find(Folded(key));
  return found == byKey.end() ? nullptr : &reads[found->second];
}

const WatchedRead* Reading::FindNumber(const std::string& key) const {
  const WatchedRead* read = Find(key);
  return read != nullptr && read->converted ? read : nullptr;
}

const KnownKey* Reading::KnownKeyOf(const std::string& name, std::int32_t* number) const {
  const auto found = std::find_if(knownKeys.begin(), knownKeys.end(), [&](const KnownKey& known) {
    return known.Matches(name, number);
  });
  return found == knownKeys.end() ? nullptr : &*found;
}

std::size_t Reading::LineOf(const std::string& key) const {
  const KeyLine* line = lines.Find(key);
  if (line != nullptr && Confirms(*line)) return line->number;
  std::int32_t number = 0;
  const KnownKey* known = KnownKeyOf(key, &number);
  const char* governor = known == nullptr ? nullptr : FactsOf(known->Shape()).governor;
  return governor != nullptr ? LineOf(governor) : std::max<std::size_t>(lines.HeaderLine(), 1);
}

bool Reading::Lists(const KeyLine& line) const {
  return !line.HasPlainName() || listedKeys.count(Folded(line.name)) != 0;
}

bool Reading::Confirms(const KeyLine& line) const {
  if (!line.HasPlainName()) return true;
  const KeyLine* counting = lines.Find(line.name);
  // Platforms differ in whether they list a line without a value.
  const bool isListed = Lists(line) || (counting != nullptr && !counting->hasEquals);
  if (counting == nullptr) return !isListed;
  const WatchedRead* read = Find(line.name);
  return isListed && (read == nullptr || IsReadOf(*read, counting->value));
}

}  // namespace tavrin::tool
