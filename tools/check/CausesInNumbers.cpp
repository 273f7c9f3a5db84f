#include <algorithm>
#include <cstdint>
#include <iterator>
#include <map>
#include <set>
#include <string>
#include <tuple>
#include <utility>
#include <vector>

#include "check/Folding.h"
#include "check/KeySuggestion.h"
#include "check/LineEdits.h"
#include "check/Rules.h"
#include "keys/KeyFacts.h"

namespace tavrin::tool {

namespace {

constexpr std::int32_t kMostEntries = 1000;  // to look at; no table is half that long

/// The numbers that a list or count asks for.
std::vector<std::int32_t> NumbersAskedFor(const Reading& reading, const std::string& governor) {
  if (governor == "Mode") return reading.modes;
  const WatchedRead* count = reading.FindNumber(governor);
  std::vector<std::int32_t> numbers;
  if (count == nullptr || governor == "CuttingMarginSetting") return numbers;
  for (std::int32_t number = 1; number <= std::min<double>(count->number, kMostEntries); ++number)
    numbers.push_back(number);
  return numbers;
}

/// Lines whose keys have one number.
struct Group {
  std::string governor;
  std::int32_t number;
  bool isTwice;  ///< the number is taken; else nothing asks for it

  bool operator<(const Group& other) const {
    return std::tie(governor, number, isTwice) <
           std::tie(other.governor, other.number, other.isTwice);
  }
};

/// The one number for which all of these keys are asked for in vain; 0 where there are none or
/// several. A mode without any key is a mistake of the list.
std::int32_t MissingNumber(const Folding& folding, const std::string& governor,
                           const std::vector<const KnownKey*>& keys) {
  const LineIndex& lines = folding.reading.lines;
  std::int32_t missing = 0;
  for (const std::int32_t number : NumbersAskedFor(folding.reading, governor)) {
    const bool areMissing = std::all_of(keys.begin(), keys.end(), [&](const KnownKey* key) {
      return lines.Find(key->WithNumber(number)) == nullptr;
    });
    if (!areMissing || number == missing) continue;
    if (missing != 0) return 0;
    missing = number;
  }
  return missing;
}

bool HasAnyKey(const Reading& reading, const std::string& governor, std::int32_t number) {
  return std::any_of(reading.knownKeys.begin(), reading.knownKeys.end(),
                     [&](const KnownKey& known) {
                       const char* own = FactsOf(known.Shape()).governor;
                       return own != nullptr && own == governor &&
                              reading.lines.Find(known.WithNumber(number)) != nullptr;
                     });
}

void JoinWrongNumber(Folding* folding, const Group& group, const Folding::Indices& lines) {
  std::vector<const KnownKey*> keys;
  for (const std::size_t i : lines) {
    std::int32_t number = 0;
    keys.push_back(folding->reading.KnownKeyOf(folding->At(i).key, &number));
  }
  const std::int32_t missing = MissingNumber(*folding, group.governor, keys);
  const bool isOfList = group.governor == "Mode" && !group.isTwice &&
                        !HasAnyKey(folding->reading, group.governor, missing);
  if (missing == 0 || isOfList) return;
  Finding& cause = folding->At(lines.front());
  const std::string meant = keys.front()->WithNumber(missing);
  cause.rule = "wrong-number";
  cause.what =
      (group.isTwice ? "number " + std::to_string(group.number) + " is there twice" : cause.what) +
      ", and there is no " + meant;
  cause.effect = Idle(folding->LinesOf(lines));
  cause.remedy = "write " + meant + (lines.size() > 1 ? " and likewise the others" : "");
  cause.certainty = Certainty::Likely;
  cause.meant = meant;
  folding->Join(lines);
  folding->Fold(lines.front(), folding->Find([&](const Finding& finding) {
    const Folding::Subject subject = folding->SubjectOf(finding);
    return (finding.rule == "key-missing" && subject.governor == group.governor &&
            subject.number == missing) ||
           (finding.rule == "entries-missing" && finding.key == group.governor);
  }));
  if (group.governor == "Mode") folding->FoldModes(lines.front(), {missing});
}

std::string WithoutZeros(const std::string& name) {
  std::string bare;
  for (const char c : Folded(name)) {
    if (c == '0' && (bare.empty() || bare.back() < '0' || bare.back() > '9')) continue;
    bare += c;
  }
  return bare;
}

/// What one name has in place of what the other has, between the ends that they share. Names that
/// differ in the zeros before their numbers differ alike.
std::string SlipOf(const std::string& name, const std::string& meant) {
  const std::string a = WithoutZeros(name);
  const std::string b = WithoutZeros(meant);
  const auto [aBegin, bBegin] = std::mismatch(a.begin(), a.end(), b.begin(), b.end());
  const auto [aEnd, bEnd] = std::mismatch(a.rbegin(), std::make_reverse_iterator(aBegin),
                                          b.rbegin(), std::make_reverse_iterator(bBegin));
  return std::string(aBegin, aEnd.base()) + '\n' + std::string(bBegin, bEnd.base());
}

void JoinHabit(Folding* folding, const Folding::Indices& lines) {
  Finding& cause = folding->At(lines.front());
  const bool isPadding = WithoutZeros(cause.key) == WithoutZeros(cause.meant);
  const std::string count =
      Counted(lines.size(), "key") + " to line " + std::to_string(folding->At(lines.back()).line);
  if (isPadding) cause.rule = "padded-number";
  // What each brings on is said once.
  std::string more;
  for (const std::size_t i : lines) {
    const std::string& effect = folding->At(i).effect;
    const std::size_t end = effect.find("; ");
    if (end != std::string::npos && more.find(effect.substr(end)) == std::string::npos)
      more += effect.substr(end);
    cause.severity = std::max(cause.severity, folding->At(i).severity);
  }
  cause.what = count + (isPadding ? " have other zeros before their numbers than what is read"
                                  : " are misspelt alike, and nothing reads them");
  cause.effect = "these lines have no effect";
  cause.remedy += " and likewise the others";
  if (!isPadding) cause.effect += more;
  folding->Join(lines);
}

}  // namespace

void JoinRepeatedKeys(Folding* folding) {
  std::map<std::string, Folding::Indices> byKey;
  for (const std::size_t i :
       folding->Find([](const Finding& finding) { return finding.rule == "key-twice"; }))
    byKey[Folded(folding->At(i).key)].push_back(i);
  for (const auto& [key, lines] : byKey) {
    if (lines.size() < 2) continue;
    Finding& cause = folding->At(lines.front());
    const std::string first = std::to_string(folding->reading.lines.Find(key)->number);
    cause.what = "only the first line of a key counts, that is line " + first;
    cause.effect = Idle(folding->LinesOf(lines));
    cause.remedy = "write what is meant in line " + first + " and remove the others";
    folding->Join(lines);
  }
}

void JoinWrongNumbers(Folding* folding) {
  std::map<Group, Folding::Indices> groups;
  for (const std::size_t i : folding->Find([](const Finding& finding) {
         return finding.rule == "key-twice" ||
                (finding.rule == "uncalled-key" && finding.severity == Severity::Warning);
       })) {
    const Folding::Subject subject = folding->SubjectOf(folding->At(i));
    if (subject.governor.empty()) continue;
    const bool isTwice = folding->At(i).rule == "key-twice";
    groups[{subject.governor, subject.number, isTwice}].push_back(i);
  }
  for (const auto& [group, lines] : groups)
    JoinWrongNumber(folding, group, lines);
}

void JoinHabits(Folding* folding) {
  std::map<std::pair<std::string, std::string>, Folding::Indices> bySlip;
  for (const std::size_t i : folding->Find([](const Finding& finding) {
         return finding.rule == "unknown-key" && finding.certainty == Certainty::Certain;
       })) {
    const Finding& finding = folding->At(i);
    const std::string governor = folding->SubjectOf(finding).governor;
    if (!governor.empty()) bySlip[{governor, SlipOf(finding.key, finding.meant)}].push_back(i);
  }
  for (const auto& [slip, lines] : bySlip) {
    const std::string& governor = slip.first;
    const std::set<std::int32_t> numbers = folding->NumbersOf(lines);
    if (lines.size() > 1) JoinHabit(folding, lines);
    if (governor == "Mode") folding->FoldModes(lines.front(), numbers);
    folding->Fold(lines.front(), folding->Find([&, name = governor](const Finding& finding) {
      return finding.rule == "entries-missing" && finding.key == name;
    }));
  }
}

void JoinNumbersFromZero(Folding* folding, const std::string& governor) {
  const Reading& reading = folding->reading;
  const WatchedRead* count = reading.FindNumber(governor);
  if (count == nullptr || count->number < 1.0) return;
  const auto last = static_cast<std::int32_t>(count->number);
  const auto isOf = [&](const KnownKey& known) {
    const char* own = FactsOf(known.Shape()).governor;
    return own != nullptr && own == governor;
  };
  for (const KnownKey& known : reading.knownKeys) {
    if (isOf(known) && (reading.lines.Find(known.WithNumber(0)) == nullptr ||
                        reading.lines.Find(known.WithNumber(last)) != nullptr))
      return;
  }
  Finding cause{"counted-from-zero", 0, Severity::Warning, {}, {}, {}, {}};
  for (const KeyLine& line : reading.lines.Keys()) {
    std::int32_t number = 0;
    const KnownKey* known = reading.KnownKeyOf(line.name, &number);
    if (known == nullptr || line.place != KeyLine::Place::Section || number >= last ||
        !isOf(*known))
      continue;
    AddNameEdit(line, known->WithNumber(number + 1), Certainty::Certain, &cause);
    if (cause.line != 0) continue;
    cause.line = line.number;
    cause.key = line.name;
    cause.remedy = "write " + known->WithNumber(number + 1) + " and likewise the others";
  }
  cause.column = 0;
  cause.what = "what " + governor + " counts is numbered from 0 here, and read from 1 on";
  folding->Fold(folding->Add(cause), folding->Find([&](const Finding& finding) {
    const Folding::Subject subject = folding->SubjectOf(finding);
    return finding.rule != "counted-from-zero" &&
           ((subject.governor == governor && (subject.number == 0 || subject.number == last)) ||
            (finding.rule == "entries-missing" && finding.key == governor));
  }));
}

}  // namespace tavrin::tool
