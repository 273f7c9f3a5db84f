#include "check/KeySuggestion.h"

#include <algorithm>
#include <array>
#include <vector>

#include "check/NumberMeaning.h"
#include "definition/TextConversion.h"
#include "definition/ValueConversion.h"
#include "keys/KeyFacts.h"

namespace tavrin::tool {

namespace {

constexpr std::size_t kLongest = 60;  // of a name to look at; no key is half that long

/// A name without what authors put between words, and its number without the zeros in front.
std::string Bare(const std::string& name) {
  std::string bare;
  bool isInNumber = false;
  for (const char c : Folded(name)) {
    if (c == ' ' || c == '\t' || c == '_' || c == '-' || c == '.' || c == ':') continue;
    const bool isDigit = c >= '0' && c <= '9';
    if (c == '0' && !isInNumber) continue;
    isInNumber = isDigit;
    bare += c;
  }
  return bare;
}

/// How many letters have to be put in, taken out, replaced or swapped with the next one to make one
/// text of the other.
std::size_t SlipsBetween(const std::string& a, const std::string& b) {
  std::array<std::array<std::size_t, kLongest + 1>, 3> rows;
  for (std::size_t i = 0; i <= a.size(); ++i) {
    auto& row = rows[i % 3];
    const auto& last = rows[(i + 2) % 3];
    for (std::size_t j = 0; j <= b.size(); ++j) {
      row[j] = std::max(i, j);
      if (i == 0 || j == 0) continue;
      row[j] =
          std::min({last[j] + 1, row[j - 1] + 1, last[j - 1] + (a[i - 1] == b[j - 1] ? 0 : 1)});
      if (i > 1 && j > 1 && a[i - 1] == b[j - 2] && a[i - 2] == b[j - 1])
        row[j] = std::min(row[j], rows[(i + 1) % 3][j - 2] + 1);
    }
  }
  return rows[a.size() % 3][b.size()];
}

/// Whether one name has words more than the other, behind it or, where it is long, before it.
bool Extends(const std::string& a, const std::string& b) {
  const std::string& shorter = a.size() < b.size() ? a : b;
  const std::string& longer = a.size() < b.size() ? b : a;
  const std::size_t before = longer.size() - shorter.size();
  return (shorter.size() >= 5 && longer.compare(0, shorter.size(), shorter) == 0) ||
         (shorter.size() >= 7 && longer.compare(before, shorter.size(), shorter) == 0);
}

/// Whether the first of the words behind the number is the same: Slice of SliceSize.
bool SharesFirstWord(const std::string& name, const KnownKey& known, const std::string& candidate) {
  const auto isUpper = [](char c) { return c >= 'A' && c <= 'Z'; };
  if (known.suffix.empty()) return false;
  const std::size_t end = static_cast<std::size_t>(
      std::find_if(known.suffix.begin() + 1, known.suffix.end(), isUpper) - known.suffix.begin());
  const std::size_t length = candidate.size() - known.suffix.size() + end;
  return end < known.suffix.size() &&
         Folded(name.substr(0, length)) == Folded(candidate.substr(0, length));
}

/// How many slips are too many.
std::size_t LimitFor(const std::string& name) {
  return name.size() / 4 + 2;
}

struct Candidate {
  std::string key;
  std::size_t slips;
  bool isAbsent;
  bool isCalledFor;
  bool isKin;
};

/// The known keys with the name's number, or for a name without one the first number whose key is
/// asked for in vain.
std::vector<Candidate> CandidatesFor(const Reading& reading, const std::string& name) {
  std::int32_t number = 1;
  const std::size_t digits = name.find_first_of("0123456789");
  if (digits != std::string::npos) ParseInt(name.substr(digits), &number);
  const std::string bare = Bare(name);
  std::vector<Candidate> candidates;
  for (const KnownKey& known : reading.knownKeys) {
    const std::string key = known.WithNumber(number);
    const std::string bareKey = Bare(key);
    if (bareKey.size() > kLongest) continue;
    const bool isKin = Extends(bare, bareKey) || SharesFirstWord(name, known, key);
    const std::size_t apart =
        std::max(bare.size(), bareKey.size()) - std::min(bare.size(), bareKey.size());
    if (!isKin && apart >= LimitFor(name)) continue;
    const std::size_t slips = SlipsBetween(bare, bareKey);
    if (!isKin && slips >= LimitFor(name)) continue;
    const char* governor = FactsOf(known.Shape()).governor;
    candidates.push_back({key, slips, reading.lines.Find(key) == nullptr,
                          governor == nullptr || IsCalledFor(reading, governor, number), isKin});
  }
  std::stable_sort(candidates.begin(), candidates.end(),
                   [](const Candidate& a, const Candidate& b) { return a.slips < b.slips; });
  return candidates;
}

}  // namespace

bool IsCalledFor(const Reading& reading, const std::string& governor, std::int32_t number) {
  const WatchedRead* count = reading.FindNumber(governor);
  if (governor == "PrinterInkSlotNum")
    return count != nullptr && number >= 1 && number <= count->number;
  return reading.numbersAskedFor.count({governor, number}) != 0;
}

bool Takes(const Reading& reading, const std::string& key, const std::string& value) {
  std::int32_t number = 0;
  const KnownKey* known = reading.KnownKeyOf(key, &number);
  const KeyFacts& facts = FactsOf(known->Shape());
  const WatchedRead* read = reading.Find(key);
  const bool isText =
      read != nullptr ? read->kind == WatchedRead::Kind::Text && facts.form == KeyFacts::Form::Text
                      : facts.form == KeyFacts::Form::Text && known->suffix == "Name";
  double converted = 0.0;
  return isText || ParseDouble(value, &converted) ||
         MeaningOf(WideCopy(value), {false, false, false, "0"}).has_value() ||
         MeaningOfList(WideCopy(value), facts.fields, false).has_value();
}

KeySuggestion SuggestKey(const Reading& reading, const std::string& name,
                         const std::string& value) {
  if (name.empty() || name.size() > kLongest) return {};
  const std::vector<Candidate> candidates = CandidatesFor(reading, name);
  if (candidates.empty()) return {};
  const Candidate& nearest = candidates.front();
  const auto isSlip = [](const Candidate& candidate) {
    return candidate.slips <= (candidate.key.size() >= 10  ? 2u
                               : candidate.key.size() >= 5 ? 1u
                                                           : 0u);
  };
  if (!nearest.isAbsent && isSlip(nearest))
    return {{}, Certainty::None, reading.lines.Find(nearest.key)};
  const bool isAlone = candidates.size() < 2 || candidates[1].slips > nearest.slips;
  if (isSlip(nearest) && isAlone && nearest.isCalledFor && Takes(reading, nearest.key, value))
    return {nearest.key, Certainty::Certain};
  for (const bool byKinship : {false, true}) {
    for (const Candidate& candidate : candidates) {
      const bool isNear =
          byKinship ? candidate.isKin && candidate.isCalledFor : candidate.slips < LimitFor(name);
      if (isNear && candidate.isAbsent && Takes(reading, candidate.key, value))
        return {candidate.key, Certainty::Likely};
    }
  }
  return {};
}

}  // namespace tavrin::tool
