#include <algorithm>
#include <cstdint>
#include <map>
#include <set>
#include <string>
#include <utility>

#include "check/Folding.h"
#include "check/Rules.h"

namespace tavrin::tool {

namespace {

constexpr char kSlotCount[] = "PrinterInkSlotNum";
constexpr std::int32_t kMostSlots = 1000;  // to look at; no printer has half that many

struct MissingCodes {
  std::string others;  ///< but for the first, of which there is a finding
  std::int32_t firstSlot = 0;
  bool isTail = true;  ///< whole slots at the end alone
};

MissingCodes FindMissingCodes(const LineIndex& lines, std::int32_t count) {
  constexpr std::size_t kMostNamed = 8;
  MissingCodes missing;
  std::size_t found = 0;
  for (std::int32_t slot = 1; slot <= count; ++slot) {
    std::size_t ofSlot = 0;
    for (const char* shape : {"ColorCodeInkSlot#", "InkTypeCodeInkSlot#"}) {
      const std::string key = Numbered(shape, slot);
      if (lines.Find(key) != nullptr) continue;
      ++ofSlot;
      if (++found > 1 && found <= kMostNamed + 1) missing.others += " and " + key;
    }
    if (ofSlot > 0 && missing.firstSlot == 0) missing.firstSlot = slot;
    if (missing.firstSlot != 0 && ofSlot < 2) missing.isTail = false;
  }
  if (found > kMostNamed + 1) missing.others += " and others";
  return missing;
}

bool IsOf(const Folding& folding, const Finding& finding, const std::set<std::string>& governors) {
  return finding.severity != Severity::Note &&
         (governors.count(finding.key) != 0 || governors.count(finding.meant) != 0 ||
          governors.count(folding.SubjectOf(finding).governor) != 0);
}

bool IsEffect(const Finding& finding) {
  return finding.rule == "slots-without-ink" || finding.rule == "empty-category" ||
         finding.rule == "unknown-code";
}

/// Whether the lines of the tables are all read, just not as they were meant.
bool IsHarmless(const Finding& finding) {
  return finding.rule == "same-code" || finding.rule == "same-digits" ||
         finding.rule == "key-twice" || IsEffect(finding);
}

/// What is nearest to the slots first.
std::size_t CauseOfSlots(const Folding& folding) {
  for (const std::set<std::string>& governors :
       {std::set<std::string>{kSlotCount}, std::set<std::string>{"NumOfColor", "NumOfInkType"}}) {
    const std::size_t cause = folding.First([&](const Finding& finding) {
      return !IsHarmless(finding) && IsOf(folding, finding, governors);
    });
    if (cause != Folding::kNone) return cause;
  }
  for (const char* rule : {"unknown-code", "slots-without-ink"}) {
    const std::size_t cause =
        folding.First([&](const Finding& finding) { return finding.rule == rule; });
    if (cause != Folding::kNone) return cause;
  }
  return Folding::kNone;
}

}  // namespace

void JoinMissingSlotCodes(Folding* folding) {
  const std::size_t cause = folding->First([&](const Finding& finding) {
    return finding.rule == "key-missing" && folding->SubjectOf(finding).governor == kSlotCount;
  });
  const WatchedRead* count = folding->reading.FindNumber(kSlotCount);
  if (cause == Folding::kNone || count == nullptr) return;
  const auto last = static_cast<std::int32_t>(std::min<double>(count->number, kMostSlots));
  const LineIndex& lines = folding->reading.lines;
  const MissingCodes missing = FindMissingCodes(lines, last);
  Finding& finding = folding->At(cause);
  if (missing.isTail && missing.firstSlot > 1) {
    const std::string there = std::to_string(missing.firstSlot - 1);
    finding.rule = "entries-missing";
    finding.key = kSlotCount;
    finding.what = "it counts more slots than there are codes for, which are " + there;
    finding.remedy = std::string("write ") + kSlotCount + '=' + there + " or the missing codes";
    finding.certainty = Certainty::Likely;
    return;
  }
  for (const char* shape : {"ColorCodeInkSlot#", "InkTypeCodeInkSlot#"}) {
    if (const KeyLine* half = lines.Find(Numbered(shape, missing.firstSlot)))
      finding.line = half->number;
  }
  if (missing.others.empty()) return;
  finding.what =
      std::string(kSlotCount) + " asks for this key" + missing.others + ", which are missing";
  finding.remedy = std::string("write them or lower ") + kSlotCount;
}

void FoldIntoSameCodes(Folding* folding) {
  for (const auto& [table, slot] : {std::pair("Color#Code", "ColorCodeInkSlot#"),
                                    std::pair("InkType#Code", "InkTypeCodeInkSlot#")}) {
    const auto of = [&](const char* rule, const char* shape) {
      return folding->Find([&](const Finding& finding) {
        return finding.rule == rule && folding->SubjectOf(finding).shape == shape;
      });
    };
    const Folding::Indices same = of("same-code", table);
    const Folding::Indices unknown = of("unknown-code", slot);
    std::set<std::int32_t> codes;
    for (const std::size_t i : unknown)
      codes.insert(
          static_cast<std::int32_t>(folding->reading.FindNumber(folding->At(i).key)->number));
    if (same.size() != 1 || codes.size() != 1) continue;
    Finding& cause = folding->At(same.front());
    cause.remedy +=
        ", such as " + std::to_string(*codes.begin()) + ", which is named without being there";
    cause.certainty = Certainty::Likely;
    folding->Fold(same.front(), unknown);
  }
}

void JoinUnknownCodes(Folding* folding) {
  std::map<std::pair<std::string, double>, Folding::Indices> byCode;
  for (const std::size_t i : folding->Find([](const Finding& finding) {
         return finding.rule == "unknown-code" && finding.edits.empty();
       })) {
    const Finding& finding = folding->At(i);
    byCode[{folding->SubjectOf(finding).shape, folding->reading.FindNumber(finding.key)->number}]
        .push_back(i);
  }
  for (const auto& [code, slots] : byCode)
    folding->Fold(slots.front(), slots);
}

void FoldSlots(Folding* folding) {
  const std::size_t cause = CauseOfSlots(*folding);
  if (cause == Folding::kNone) return;
  const bool isOneCode = folding->At(cause).rule == "unknown-code";
  folding->Fold(cause, folding->Find([&](const Finding& finding) {
    return IsEffect(finding) && !(isOneCode && finding.rule == "unknown-code");
  }));
}

}  // namespace tavrin::tool
