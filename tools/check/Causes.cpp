#include "check/Causes.h"

#include <algorithm>
#include <cstdint>
#include <map>
#include <set>
#include <string>
#include <vector>

#include "check/LineEdits.h"
#include "check/Rules.h"
#include "keys/KeyFacts.h"

namespace tavrin::tool {

namespace {

constexpr char kSlotCount[] = "PrinterInkSlotNum";
constexpr std::size_t kNone = static_cast<std::size_t>(-1);

std::string Listed(const std::set<std::int32_t>& numbers) {
  std::string listed;
  for (const std::int32_t number : numbers)
    listed += (listed.empty() ? "" : ", ") + std::to_string(number);
  return Shortened(listed);
}

class Folding {
 public:
  Folding(const Reading& reading, Findings* findings)
      : reading_(reading), findings_(*findings), gone_(findings->size()) {}

  void Run();

 private:
  /// What is known of the key that a finding is about.
  struct Subject {
    std::string shape;
    std::string governor;
    std::int32_t number = 0;
  };
  using Indices = std::vector<std::size_t>;

  void FoldIntoMeantKeys();
  void FoldIntoCount(const std::string& governor);
  void JoinMissingModeKeys();
  void JoinMissingSlotCodes();
  void FoldSlots();
  Subject SubjectOf(const Finding& finding) const;
  template <typename Condition>
  Indices Find(Condition condition) const;
  template <typename Condition>
  std::size_t First(Condition condition) const {
    const Indices found = Find(condition);
    return found.empty() ? kNone : found.front();
  }
  void Fold(std::size_t cause, const Indices& consequences);
  std::size_t AddCause(const std::string& governor, const Indices& uncalled);
  std::set<std::int32_t> ModesLeftOut() const;
  std::string EmptyCategories() const;
  void FoldModeNumbers(std::size_t cause, const std::set<std::int32_t>& modes);
  void JoinPaddedNumbers();
  void JoinNumbersFromZero(const std::string& governor);

  const Reading& reading_;
  Findings& findings_;
  std::vector<bool> gone_;
};

Folding::Subject Folding::SubjectOf(const Finding& finding) const {
  Subject subject;
  const std::string& key = finding.meant.empty() ? finding.key : finding.meant;
  const KnownKey* known = reading_.KnownKeyOf(key, &subject.number);
  if (known == nullptr) return subject;
  subject.shape = known->Shape();
  const char* governor = FactsOf(subject.shape).governor;
  subject.governor = governor == nullptr ? "" : governor;
  return subject;
}

template <typename Condition>
Folding::Indices Folding::Find(Condition condition) const {
  Indices found;
  for (std::size_t i = 0; i < findings_.size(); ++i) {
    if (!gone_[i] && condition(findings_[i])) found.push_back(i);
  }
  return found;
}

void Folding::Fold(std::size_t cause, const Indices& consequences) {
  std::set<std::string> effects = {findings_[cause].effect};
  std::size_t first = kNone;
  std::size_t last = 0;
  std::size_t lines = 0;
  std::set<std::int32_t> slots;
  std::string sum;
  for (const std::size_t i : consequences) {
    if (i == cause || gone_[i]) continue;
    gone_[i] = true;
    const Finding& finding = findings_[i];
    findings_[cause].severity = std::max(findings_[cause].severity, finding.severity);
    if (finding.rule == "uncalled-key") {
      first = std::min(first, finding.line);
      last = std::max(last, finding.line);
      ++lines;
      continue;
    }
    if (finding.rule == "unknown-code") {
      slots.insert(SubjectOf(finding).number);
      continue;
    }
    std::string effect = finding.effect;
    if (finding.rule == "unknown-default-mode" || finding.rule == "unknown-limited-mode")
      effect = finding.what;
    if (finding.rule == "empty-category") effect = EmptyCategories();
    if (effects.insert(effect).second) sum += "; " + effect;
  }
  if (!slots.empty()) sum += "; slots without a known ink: " + Listed(slots);
  if (lines > 0) {
    sum += lines == 1 ? "; line " + std::to_string(first) + " has no effect"
                      : "; " + std::to_string(lines) + " lines from " + std::to_string(first) +
                            " to " + std::to_string(last) + " have no effect";
  }
  if (findings_[cause].effect.empty()) sum.erase(0, 2);
  findings_[cause].effect += sum;
}

/// A line that was to be another key brings on what the lack of that key does.
void Folding::FoldIntoMeantKeys() {
  std::map<std::string, Indices> byMeant;
  for (const std::size_t i : Find([](const Finding& finding) { return !finding.meant.empty(); }))
    byMeant[Folded(findings_[i].meant)].push_back(i);
  if (byMeant.empty()) return;
  std::map<std::string, Indices> consequences;  // by the key that is missing
  for (const std::size_t i : Find([](const Finding& finding) { return finding.meant.empty(); })) {
    const Finding& finding = findings_[i];
    consequences[Folded(finding.key)].push_back(i);
    if (finding.rule == "uncalled-key")
      consequences[Folded(SubjectOf(finding).governor)].push_back(i);
  }
  for (const auto& [meant, causes] : byMeant) {
    for (const std::size_t i : causes) {
      if (causes.size() < 2) break;
      // Only one of the lines can be the key.
      findings_[i].certainty = std::min(findings_[i].certainty, Certainty::Likely);
      findings_[i].edits.clear();
    }
    Fold(causes.front(), consequences[meant]);
  }
}

std::set<std::int32_t> Folding::ModesLeftOut() const {
  std::set<std::int32_t> modes(reading_.modes.begin(), reading_.modes.end());
  for (const auto& mode : reading_.config->Modes)
    modes.erase(mode->Number);
  return modes;
}

/// The finding on a count or list that is missing or too short for the keys of the file.
std::size_t Folding::AddCause(const std::string& governor, const Indices& uncalled) {
  std::set<std::int32_t> numbers;
  for (const std::size_t i : uncalled)
    numbers.insert(SubjectOf(findings_[i]).number);
  const KeyLine* line = reading_.lines.Find(governor);
  std::string value = std::to_string(*numbers.rbegin());
  if (governor == "Mode") {
    value.clear();
    for (const std::int32_t mode : reading_.modes)
      value += std::to_string(mode) + ',';
    for (const std::int32_t mode : numbers)
      value += std::to_string(mode) + ',';
    value.pop_back();
  }
  // Numbers that leave a gap are no table yet.
  const std::int32_t counted =
      line == nullptr || reading_.FindNumber(governor) == nullptr
          ? 0
          : static_cast<std::int32_t>(reading_.FindNumber(governor)->number);
  const bool fits = governor == "Mode" ||
                    (*numbers.begin() == counted + 1 &&
                     *numbers.rbegin() == counted + static_cast<std::int32_t>(numbers.size()));
  const std::size_t at = line != nullptr ? line->number : findings_[uncalled.front()].line;
  findings_.push_back(
      {line != nullptr ? "uncounted-entries" : "count-missing", at, Severity::Warning, governor,
       line != nullptr ? "it leaves out what is numbered " + Listed(numbers)
                       : "this key is missing, though the keys that it asks for are there",
       line != nullptr ? "" : FactsOf(governor).Outcome(*reading_.config, 0),
       fits ? "write " + governor + '=' + value : "make it fit the numbers of those keys"});
  findings_.back().certainty = fits ? Certainty::Likely : Certainty::None;
  gone_.push_back(false);
  return findings_.size() - 1;
}

void Folding::FoldIntoCount(const std::string& governor) {
  const Indices uncalled = Find([&](const Finding& finding) {
    return finding.rule == "uncalled-key" && SubjectOf(finding).governor == governor &&
           finding.severity == Severity::Warning;
  });
  std::size_t cause = First([&](const Finding& finding) {
    return finding.key == governor && finding.severity != Severity::Note &&
           finding.rule != "slots-without-ink" && finding.rule != "empty-category" &&
           finding.rule != "mode-twice";
  });
  if (uncalled.empty()) return;
  if (cause == kNone) cause = AddCause(governor, uncalled);
  Fold(cause, uncalled);
  std::set<std::int32_t> numbers;
  for (const std::size_t i : uncalled)
    numbers.insert(SubjectOf(findings_[i]).number);
  if (governor == "Mode") FoldModeNumbers(cause, numbers);
}

/// What names modes that the cause keeps out.
void Folding::FoldModeNumbers(std::size_t cause, const std::set<std::int32_t>& modes) {
  std::set<std::string> lacks;
  for (const std::int32_t mode : modes)
    lacks.insert(Numbered("the printer has no mode #", mode));
  const bool hasModes = !reading_.modes.empty();
  Fold(cause, Find([&](const Finding& finding) {
         return ((finding.rule == "unknown-default-mode" ||
                  finding.rule == "unknown-limited-mode") &&
                 lacks.count(finding.what) != 0) ||
                (!hasModes && finding.rule == "uncalled-key" && finding.key == "LimitationMode");
       }));
}

std::string Folding::EmptyCategories() const {
  const auto& categories = reading_.config->InkCategories;
  const auto empty = static_cast<std::size_t>(
      std::count_if(categories.begin(), categories.end(),
                    [](const auto& category) { return category->slots.empty(); }));
  return "of " + std::to_string(categories.size()) + " ink categories" + ' ' +
         std::to_string(empty) +
         (empty == 1 ? " has no slot, so the query for its slots fails"
                     : " have no slot, so the queries for their slots fail");
}

/// One habit of numbering brings on a finding a line.
void Folding::JoinPaddedNumbers() {
  const auto withoutZeros = [](const std::string& name) {
    std::string bare;
    for (const char c : Folded(name)) {
      if (c == '0' && (bare.empty() || bare.back() < '0' || bare.back() > '9')) continue;
      bare += c;
    }
    return bare;
  };
  std::map<std::string, Indices> byGovernor;
  for (const std::size_t i : Find([&](const Finding& finding) {
         return finding.rule == "unknown-key" && finding.certainty == Certainty::Certain &&
                withoutZeros(finding.key) == withoutZeros(finding.meant);
       }))
    byGovernor[SubjectOf(findings_[i]).governor].push_back(i);
  for (const auto& [governor, padded] : byGovernor) {
    std::set<std::int32_t> numbers;
    for (const std::size_t i : padded)
      numbers.insert(SubjectOf(findings_[i]).number);
    const std::size_t cause = padded.front();
    if (padded.size() > 1) {
      Finding& finding = findings_[cause];
      finding.rule = "padded-number";
      finding.what = Counted(padded.size(), "key") + " to line " +
                     std::to_string(findings_[padded.back()].line) +
                     " have other zeros before their numbers than what is read";
      finding.effect = "these lines have no effect";
      finding.remedy += " and likewise the others";
      for (const std::size_t i : padded) {
        if (i == cause) continue;
        finding.edits.insert(finding.edits.end(), findings_[i].edits.begin(),
                             findings_[i].edits.end());
        gone_[i] = true;
      }
    }
    if (governor == "Mode") FoldModeNumbers(cause, numbers);
    Fold(cause, Find([&, name = governor](const Finding& finding) {
           return finding.rule == "entries-missing" && finding.key == name;
         }));
  }
}

/// Entries from 0 to one below the count are those from 1 to the count.
void Folding::JoinNumbersFromZero(const std::string& governor) {
  const WatchedRead* count = reading_.FindNumber(governor);
  if (count == nullptr || count->number < 1.0) return;
  const auto last = static_cast<std::int32_t>(count->number);
  for (const KnownKey& known : reading_.knownKeys) {
    const char* own = FactsOf(known.Shape()).governor;
    if (own == nullptr || own != governor) continue;
    if (reading_.lines.Find(known.WithNumber(0)) == nullptr ||
        reading_.lines.Find(known.WithNumber(last)) != nullptr)
      return;
  }
  Finding cause{"counted-from-zero", 0, Severity::Warning, {}, {}, {}, {}};
  for (const KeyLine& line : reading_.lines.Keys()) {
    std::int32_t number = 0;
    const KnownKey* known = reading_.KnownKeyOf(line.name, &number);
    if (known == nullptr || line.place != KeyLine::Place::Section || number >= last) continue;
    const char* own = FactsOf(known->Shape()).governor;
    if (own == nullptr || own != governor) continue;
    AddNameEdit(line, known->WithNumber(number + 1), Certainty::Certain, &cause);
    if (cause.line != 0) continue;
    cause.line = line.number;
    cause.key = line.name;
    cause.remedy = "write " + known->WithNumber(number + 1) + " and likewise the others";
  }
  cause.column = 0;
  cause.what = "what " + governor + " counts is numbered from 0 here, and read from 1 on";
  findings_.push_back(cause);
  gone_.push_back(false);
  Fold(findings_.size() - 1, Find([&](const Finding& finding) {
         const Subject subject = SubjectOf(finding);
         return (subject.governor == governor && (subject.number == 0 || subject.number == last)) ||
                (finding.rule == "entries-missing" && finding.key == governor);
       }));
}

/// One mode's missing keys, those too that are not asked for because of the first.
void Folding::JoinMissingModeKeys() {
  for (const std::int32_t mode : ModesLeftOut()) {
    const Indices own = Find([&](const Finding& finding) {
      const Subject subject = SubjectOf(finding);
      return subject.governor == "Mode" && subject.number == mode;
    });
    if (own.empty()) continue;
    Finding& cause = findings_[own.front()];
    if (cause.rule == "key-missing") {
      std::string missing;
      std::size_t line = kNone;
      for (const char* shape : {"Mode#", "Mode#SliceSize", "Mode#ColorThickness"}) {
        const std::string key = Numbered(shape, mode);
        const KeyLine* written = reading_.lines.Find(key);
        if (written != nullptr) {
          line = std::min(line, written->number);
        } else if (Folded(key) != Folded(cause.key)) {
          missing += " and " + key;
        }
      }
      if (!missing.empty()) {
        cause.what = "Mode asks for this key" + missing + ", which are missing";
        cause.remedy = "write them";
      }
      if (line != kNone) cause.line = line;
    }
    FoldModeNumbers(own.front(), {mode});
  }
}

void Folding::JoinMissingSlotCodes() {
  const std::size_t cause = First([&](const Finding& finding) {
    return finding.rule == "key-missing" && SubjectOf(finding).governor == kSlotCount;
  });
  const WatchedRead* count = reading_.FindNumber(kSlotCount);
  if (cause == kNone || count == nullptr) return;
  constexpr double kMost = 1000;
  std::string missing;
  std::size_t others = 0;
  for (std::int32_t slot = 1; slot <= std::min(count->number, kMost); ++slot) {
    for (const char* shape : {"ColorCodeInkSlot#", "InkTypeCodeInkSlot#"}) {
      const std::string key = Numbered(shape, slot);
      if (reading_.lines.Find(key) != nullptr || Folded(key) == Folded(findings_[cause].key))
        continue;
      constexpr std::size_t kMostNamed = 8;
      if (++others <= kMostNamed) missing += " and " + key;
    }
  }
  if (others == 0) return;
  findings_[cause].what = std::string(kSlotCount) + " asks for this key" + missing +
                          (others > 8 ? " and others" : "") + ", which are missing";
  findings_[cause].remedy = std::string("write them or lower ") + kSlotCount;
}

/// Slots without ink and categories without slots, which nobody writes.
void Folding::FoldSlots() {
  const auto isOf = [&](const Finding& finding, const std::set<std::string>& governors) {
    return finding.severity != Severity::Note &&
           (governors.count(finding.key) != 0 ||
            governors.count(SubjectOf(finding).governor) != 0 ||
            governors.count(finding.meant) != 0);
  };
  const auto isEffect = [](const Finding& finding) {
    return finding.rule == "slots-without-ink" || finding.rule == "empty-category" ||
           finding.rule == "unknown-code";
  };
  // What is nearest to the slots first.
  std::size_t cause = kNone;
  for (const std::set<std::string>& governors :
       {std::set<std::string>{kSlotCount}, std::set<std::string>{"NumOfColor", "NumOfInkType"}}) {
    if (cause != kNone) break;
    cause = First([&](const Finding& finding) {
      return !isEffect(finding) && finding.rule != "same-code" && finding.rule != "same-digits" &&
             finding.rule != "key-twice" && isOf(finding, governors);
    });
  }
  for (const char* rule : {"unknown-code", "slots-without-ink"}) {
    if (cause != kNone) break;
    cause = First([&](const Finding& finding) { return finding.rule == rule; });
  }
  if (cause == kNone) return;
  const bool isOneCode = findings_[cause].rule == "unknown-code";
  Fold(cause, Find([&](const Finding& finding) {
         return isEffect(finding) && !(isOneCode && finding.rule == "unknown-code");
       }));
}

void Folding::Run() {
  FoldIntoMeantKeys();
  JoinPaddedNumbers();
  for (const char* governor : {"NumOfColor", "NumOfInkType", kSlotCount})
    JoinNumbersFromZero(governor);
  for (const char* governor : {"Mode", "NumOfColor", "NumOfInkType", kSlotCount})
    FoldIntoCount(governor);
  JoinMissingModeKeys();
  JoinMissingSlotCodes();
  FoldSlots();
  Findings kept;
  for (std::size_t i = 0; i < findings_.size(); ++i) {
    if (!gone_[i]) kept.push_back(findings_[i]);
  }
  findings_ = kept;
}

}  // namespace

void FoldConsequences(const Reading& reading, Findings* findings) {
  Folding(reading, findings).Run();
}

}  // namespace tavrin::tool
