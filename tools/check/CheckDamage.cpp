#include <algorithm>
#include <iterator>
#include <string_view>

#include "check/RuleList.h"
#include "check/Rules.h"
#include "check/Utf8.h"

namespace tavrin::tool {

namespace {

constexpr char kFile[] = "file";

/// Whether no text has such a line. A single NUL is a slip, of which another rule knows; of erased
/// storage all bits are set.
bool IsNoText(const std::string& line) {
  const auto isControl = [](char c) {
    return (c > 0 && c < ' ' && std::string_view("\t\v\f\x1A").find(c) == std::string_view::npos) ||
           c == 0x7F;
  };
  return std::any_of(line.begin(), line.end(), isControl) ||
         std::count(line.begin(), line.end(), '\0') > 1 ||
         line.find("\xFF\xFF\xFF") != std::string::npos;
}

/// What one line tells by itself, whatever was lost of the others.
bool IsOfOneLine(const Finding& finding) {
  return FindRule(finding.rule)->scope == Rule::Scope::Line;
}

/// The line from which on the file is no text; 0 when it is one throughout.
std::size_t FindDamage(const LineIndex& index) {
  const std::vector<std::string>& lines = index.Lines();
  const auto damaged = std::find_if(lines.begin(), lines.end(), IsNoText);
  if (damaged == lines.end()) return 0;
  // It may begin in a line that has no control character by chance.
  auto first = damaged;
  while (first != lines.begin() && !IsUtf8(*std::prev(first)))
    --first;
  return static_cast<std::size_t>(first - lines.begin()) + 1;
}

/// Takes findings out.
///
/// @return the worst severity among them, or else the least one.
template <typename Predicate>
Severity TakeOut(Findings* findings, Predicate isOut) {
  Severity worst = Severity::Note;
  for (const Finding& finding : *findings) {
    if (isOut(finding)) worst = std::max(worst, finding.severity);
  }
  findings->erase(std::remove_if(findings->begin(), findings->end(), isOut), findings->end());
  return worst;
}

void CheckDamage(const Check& check, std::size_t line) {
  TakeOut(check.findings,
          [&](const Finding& finding) { return finding.line >= line || !IsOfOneLine(finding); });
  check.Add("damaged", line, Severity::Error, kFile,
            "no text from line " + std::to_string(line) +
                " on: damaged, or line ends changed in transfer",
            check.reading.loads ? "what the printer gets from there on is chance"
                                : "the definition does not load",
            "transfer it anew, as a binary file");
}

/// Whether the end of the file shows that it was cut off.
bool IsOfCut(const Finding& finding, std::size_t last) {
  return finding.line == last && (finding.rule == "no-equals-sign" || finding.rule == "no-value" ||
                                  finding.rule == "fields-missing");
}

void CheckEnd(const Check& check) {
  const LineIndex& lines = check.reading.lines;
  if (lines.IsEnded()) return;
  Findings& findings = *check.findings;
  const std::size_t last = std::max<std::size_t>(lines.Lines().size(), 1);
  const bool isCut = std::any_of(findings.begin(), findings.end(),
                                 [&](const Finding& finding) { return IsOfCut(finding, last); });
  Severity severity = Severity::Warning;
  if (isCut) {
    severity = std::max(severity, TakeOut(&findings, [&](const Finding& finding) {
                          return IsOfCut(finding, last) || !IsOfOneLine(finding);
                        }));
  }
  check
      .Add("no-line-end", last, severity, kFile,
           isCut ? "it ends within a line, so it was cut off"
                 : "the last line has no end, so it was perhaps cut off",
           isCut ? "what followed is missing" : "what followed would be missing",
           isCut ? "get the whole file" : "see whether it is whole, and end the line")
      .certainty = Certainty::Likely;
}

bool IsOfSections(const Finding& finding) {
  return finding.rule == "outside-section" || finding.rule == "later-section" ||
         finding.rule == "hidden-section";
}

/// Whether the library sees no section for want of a ].
bool HidesAll(const Finding& finding) {
  return finding.rule == "open-header" && finding.severity == Severity::Error;
}

/// Whether a key that could be read stands where none is.
bool HasLostKeys(const Reading& reading) {
  const auto& keys = reading.lines.Keys();
  return std::any_of(keys.begin(), keys.end(), [&](const KeyLine& key) {
    std::int32_t number = 0;
    return key.place != KeyLine::Place::Section && reading.lines.Find(key.name) == nullptr &&
           reading.KnownKeyOf(key.name, &number) != nullptr && reading.Confirms(key);
  });
}

/// What is missed for a header's sake is the header's fault.
void CheckLostKeys(const Check& check) {
  Findings& findings = *check.findings;
  if (std::any_of(findings.begin(), findings.end(), HidesAll))
    TakeOut(&findings, [](const Finding& finding) { return !HidesAll(finding); });
  if (std::none_of(findings.begin(), findings.end(), IsOfSections) || !HasLostKeys(check.reading))
    return;
  const Severity worst = TakeOut(&findings, [](const Finding& finding) {
    return !IsOfSections(finding) && !IsOfOneLine(finding) && finding.rule != "no-section" &&
           finding.rule != "no-version" && finding.rule != "open-header";
  });
  Finding& cause = *std::find_if(findings.begin(), findings.end(), IsOfSections);
  cause.severity = std::max(cause.severity, worst);
}

}  // namespace

void CheckWhole(const Check& check) {
  if (const std::size_t line = FindDamage(check.reading.lines)) {
    CheckDamage(check, line);
    return;
  }
  CheckLostKeys(check);
  CheckEnd(check);
}

}  // namespace tavrin::tool
