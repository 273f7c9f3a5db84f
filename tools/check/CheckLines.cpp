#include <algorithm>
#include <set>

#include "check/KeySuggestion.h"
#include "check/LineEdits.h"
#include "check/Rules.h"
#include "keys/KeyFacts.h"

namespace tavrin::tool {

namespace {

constexpr char kNoEffect[] = "the line has no effect";

/// A name that is a value, and a value that is the name of a key.
bool CheckSwapped(const Check& check, const KeyLine& line) {
  std::int32_t number = 0;
  if (check.reading.KnownKeyOf(line.value, &number) == nullptr ||
      check.reading.lines.Find(line.value) != nullptr ||
      !Takes(check.reading, line.value, line.name))
    return false;
  Finding& finding = check.Add("unknown-key", line.number, Severity::Warning, line.name,
                               "key and value are the wrong way round", kNoEffect,
                               "write " + line.value + '=' + Shortened(line.name));
  finding.meant = line.value;
  finding.certainty = Certainty::Likely;
  return true;
}

/// A line that is nothing but words, as a comment is.
bool IsProse(const std::string& name) {
  return name.find(' ') != std::string::npos;
}

void CheckUnknownKey(const Check& check, const KeyLine& line) {
  if (line.hasEquals && CheckSwapped(check, line)) return;
  const KeySuggestion meant = SuggestKey(check.reading, line.name, line.value);
  const bool isCertain = line.hasEquals && meant.certainty == Certainty::Certain;
  std::string remedy = "remove it";
  if (meant.present != nullptr) {
    remedy +=
        ", as " + meant.present->name + " is in line " + std::to_string(meant.present->number);
  } else if (!meant.key.empty()) {
    remedy = "write " + meant.key;
  } else if (!line.hasEquals && IsProse(line.name)) {
    remedy = "write ; before it if it is a comment, or remove it";
  }
  Finding& finding = check.Add(
      line.hasEquals ? "unknown-key" : "no-equals-sign", line.number, Severity::Warning, line.name,
      line.hasEquals ? "nothing reads this key" : "a line without = gives no value", kNoEffect,
      remedy);
  finding.meant = meant.key;
  if (isCertain) {
    AddNameEdit(line, meant.key, Certainty::Certain, &finding);
  } else if (!meant.key.empty()) {
    finding.certainty = Certainty::Likely;
  }
}

void CheckUncalledKey(const Check& check, const KeyLine& line, const std::string& governor,
                      std::int32_t number) {
  if (IsCalledFor(check.reading, governor, number)) return;
  // The thicknesses of other settings are what a setting is picked from.
  const bool isChoice =
      governor == "CuttingMarginSetting" && check.reading.lines.Find(governor) != nullptr;
  if (isChoice && number == 0) {
    check
        .Add("counted-from-zero", line.number, Severity::Warning, line.name,
             governor + " 0 means none, so nothing asks for number 0", kNoEffect,
             "number the settings from 1")
        .certainty = Certainty::Likely;
    return;
  }
  const bool isWritten = check.reading.lines.Find(governor) != nullptr;
  check.Add("uncalled-key", line.number, isChoice ? Severity::Note : Severity::Warning, line.name,
            Numbered(governor + " does not ask for number #", number), kNoEffect,
            (isWritten ? "change " : "write ") + governor + " or remove the line");
}

void CheckUnreadKey(const Check& check, const KeyLine& line) {
  std::int32_t number = 0;
  const KnownKey* known = check.reading.KnownKeyOf(line.name, &number);
  if (known == nullptr) {
    CheckUnknownKey(check, line);
  } else if (const char* governor = FactsOf(known->Shape()).governor) {
    CheckUncalledKey(check, line, governor, number);
  } else {
    check.Add("uncalled-key", line.number, Severity::Warning, line.name,
              "nothing asks for this key without print modes", kNoEffect,
              "list modes in Mode or remove the line");
  }
}

/// The line that counts in place of this one; null where this one does. Unlike names with '?' for
/// other characters can look alike, so of those each counts.
const KeyLine* EarlierLine(const LineIndex& lines, const KeyLine& line) {
  const KeyLine* counting = lines.Find(line.name);
  const bool isEarlier =
      counting->number != line.number && line.name.find('?') == std::string::npos;
  return isEarlier ? counting : nullptr;
}

void CheckLine(const Check& check, const KeyLine& line) {
  if (line.place != KeyLine::Place::Section || !check.reading.Confirms(line)) return;
  if (const KeyLine* earlier = EarlierLine(check.reading.lines, line)) {
    check.Add("key-twice", line.number, Severity::Warning, line.name,
              "only the first line of a key counts", kNoEffect,
              "remove it or line " + std::to_string(earlier->number));
  } else if (check.reading.Find(line.name) == nullptr) {
    CheckUnreadKey(check, line);
  }
}

}  // namespace

bool CheckMark(const Check& check) {
  const LineIndex& lines = check.reading.lines;
  const bool loads = check.reading.loads;
  if (lines.HiddenHeaderLine() == 0) return false;
  Finding& finding =
      check.Add("hidden-section", lines.HiddenHeaderLine(),
                loads ? Severity::Warning : Severity::Error, "[printer]",
                lines.IsUtf16() ? "UTF-16 that does not begin with FF FE hides the section"
                                : "a byte order mark before the section hides it",
                loads ? "its keys are not read" : "the definition does not load",
                lines.IsUtf16() ? "save the file as UTF-16LE with a mark or in the user's encoding"
                                : "save the file without a mark");
  // Where another section is read, the two would change places.
  finding.certainty = loads ? Certainty::Likely : Certainty::Certain;
  if (lines.IsUtf16()) {
    finding.certainty = Certainty::Likely;
  } else if (!loads) {
    finding.edits = {{0, 0, 0, ""}};
  }
  return !loads;
}

void CheckLines(const Check& check) {
  const std::set<std::size_t> judged = CheckNotation(check);
  for (const KeyLine& line : check.reading.lines.Keys()) {
    if (judged.count(line.number) == 0) CheckLine(check, line);
  }
}

}  // namespace tavrin::tool
