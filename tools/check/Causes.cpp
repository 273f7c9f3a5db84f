#include "check/Causes.h"

#include <map>
#include <set>
#include <string>
#include <vector>

#include "check/Folding.h"
#include "check/Rules.h"
#include "keys/KeyFacts.h"

namespace tavrin::tool {

namespace {

bool IsUncalled(const Folding& folding, const Finding& finding, const std::string& governor) {
  return finding.rule == "uncalled-key" && finding.severity == Severity::Warning &&
         folding.SubjectOf(finding).governor == governor;
}

/// Modes of the list of which the file has no key.
std::set<std::int32_t> ModesWithoutKeys(const Reading& reading) {
  std::set<std::int32_t> modes;
  for (const std::int32_t mode : reading.modes) {
    const auto isThere = [&](const char* shape) {
      return reading.lines.Find(Numbered(shape, mode)) != nullptr;
    };
    if (!isThere("Mode#") && !isThere("Mode#SliceSize") && !isThere("Mode#ColorThickness"))
      modes.insert(mode);
  }
  return modes;
}

/// The list with the numbers that it leaves out in place of those that have no keys, or at its end.
std::string MendedModes(const Reading& reading, const std::set<std::int32_t>& leftOut) {
  const std::set<std::int32_t> without = ModesWithoutKeys(reading);
  std::string list;
  bool areAdded = false;
  const auto addLeftOut = [&] {
    for (const std::int32_t mode : leftOut)
      list += areAdded ? std::string() : ',' + std::to_string(mode);
    areAdded = true;
  };
  for (const std::int32_t mode : reading.modes) {
    if (without.count(mode) != 0) {
      addLeftOut();
    } else {
      list += ',' + std::to_string(mode);
    }
  }
  addLeftOut();
  return list.substr(1);
}

/// Says of the list of modes, or of a count, that it does not go with the keys of the file.
std::size_t AddModeList(Folding* folding, const std::set<std::int32_t>& leftOut) {
  const Reading& reading = folding->reading;
  const std::set<std::int32_t> without = ModesWithoutKeys(reading);
  const std::string lists =
      without.empty() ? "it " : "it lists " + Listed(without) + " without any keys and ";
  const std::size_t cause =
      folding->Add({"uncounted-entries", reading.LineOf("Mode"), Severity::Warning, "Mode",
                    lists + "leaves out what is numbered " + Listed(leftOut), "",
                    "write Mode=" + MendedModes(reading, leftOut)});
  folding->At(cause).certainty = Certainty::Likely;
  folding->Fold(cause, folding->Find([&](const Finding& finding) {
    const Folding::Subject subject = folding->SubjectOf(finding);
    return finding.rule == "key-missing" && subject.governor == "Mode" &&
           without.count(subject.number) != 0;
  }));
  folding->FoldModes(cause, without);
  return cause;
}

std::size_t AddCount(Folding* folding, const std::string& governor,
                     const std::set<std::int32_t>& leftOut) {
  // Numbers that leave a gap are no table yet.
  const WatchedRead* read = folding->reading.FindNumber(governor);
  const std::int32_t counted = read == nullptr ? 0 : static_cast<std::int32_t>(read->number);
  const bool fits = *leftOut.begin() == counted + 1 &&
                    *leftOut.rbegin() == counted + static_cast<std::int32_t>(leftOut.size());
  const std::size_t cause =
      folding->Add({"uncounted-entries", folding->reading.LineOf(governor), Severity::Warning,
                    governor, "it leaves out what is numbered " + Listed(leftOut), "",
                    fits ? "write " + governor + '=' + std::to_string(*leftOut.rbegin())
                         : "make it fit the numbers of those keys"});
  if (fits) folding->At(cause).certainty = Certainty::Likely;
  return cause;
}

std::size_t AddCause(Folding* folding, const std::string& governor, const Folding::Indices& idle) {
  const std::set<std::int32_t> numbers = folding->NumbersOf(idle);
  const std::size_t cause =
      governor == "Mode" ? AddModeList(folding, numbers) : AddCount(folding, governor, numbers);
  if (folding->reading.lines.Find(governor) != nullptr) return cause;
  Finding& finding = folding->At(cause);
  finding.rule = "count-missing";
  finding.line = folding->At(idle.front()).line;
  finding.what = "this key is missing, though the keys that it asks for are there";
  finding.effect = FactsOf(governor).Outcome(*folding->reading.config, 0);
  return cause;
}

}  // namespace

void FoldIntoMeantKeys(Folding* folding) {
  std::map<std::string, Folding::Indices> byMeant;
  for (const std::size_t i :
       folding->Find([](const Finding& finding) { return !finding.meant.empty(); }))
    byMeant[Folded(folding->At(i).meant)].push_back(i);
  if (byMeant.empty()) return;
  std::map<std::string, Folding::Indices> consequences;  // by the key that is missing
  for (const std::size_t i :
       folding->Find([](const Finding& finding) { return finding.meant.empty(); })) {
    const Finding& finding = folding->At(i);
    consequences[Folded(finding.key)].push_back(i);
    if (finding.rule == "uncalled-key")
      consequences[Folded(folding->SubjectOf(finding).governor)].push_back(i);
  }
  for (const auto& [meant, causes] : byMeant) {
    for (const std::size_t i : causes) {
      if (causes.size() < 2) break;
      // Only one of the lines can be the key.
      Finding& finding = folding->At(i);
      finding.certainty = std::min(finding.certainty, Certainty::Likely);
      finding.edits.clear();
    }
    if (meant == "mode")
      folding->FoldModes(causes.front(), folding->NumbersOf(consequences[meant]));
    folding->Fold(causes.front(), consequences[meant]);
  }
}

void FoldIntoCount(Folding* folding, const std::string& governor) {
  const Folding::Indices idle = folding->Find(
      [&](const Finding& finding) { return IsUncalled(*folding, finding, governor); });
  if (idle.empty()) return;
  std::size_t cause = folding->First([&](const Finding& finding) {
    return finding.key == governor && finding.severity != Severity::Note &&
           finding.rule != "slots-without-ink" && finding.rule != "empty-category" &&
           finding.rule != "mode-twice";
  });
  if (cause == Folding::kNone) cause = AddCause(folding, governor, idle);
  if (governor == "Mode") folding->FoldModes(cause, folding->NumbersOf(idle));
  folding->Fold(cause, idle);
}

void FoldConsequences(const Reading& reading, Findings* findings) {
  Folding folding(reading, std::move(*findings));
  JoinRepeatedKeys(&folding);
  JoinWrongNumbers(&folding);
  FoldIntoMeantKeys(&folding);
  JoinHabits(&folding);
  for (const char* governor : {"NumOfColor", "NumOfInkType", "PrinterInkSlotNum"})
    JoinNumbersFromZero(&folding, governor);
  for (const char* governor : {"Mode", "NumOfColor", "NumOfInkType", "PrinterInkSlotNum"})
    FoldIntoCount(&folding, governor);
  JoinMissingModeKeys(&folding);
  JoinMissingSlotCodes(&folding);
  FoldIntoSameCodes(&folding);
  FoldSlots(&folding);
  JoinUnknownCodes(&folding);
  *findings = folding.Kept();
}

}  // namespace tavrin::tool
