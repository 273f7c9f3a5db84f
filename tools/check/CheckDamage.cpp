#include <algorithm>
#include <iterator>
#include <string_view>

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
  static constexpr std::string_view kRules[] = {"address",
                                                "beyond-ascii",
                                                "digits-beyond-ascii",
                                                "fields-beyond",
                                                "key-twice",
                                                "long-text",
                                                "long-value",
                                                "no-equals-sign",
                                                "no-number",
                                                "no-slice",
                                                "no-value",
                                                "number-in-part",
                                                "number-range",
                                                "quotes",
                                                "switch-value",
                                                "text-behind-header",
                                                "undecodable",
                                                "unknown-key",
                                                "value-comment",
                                                "value-range"};
  return std::find(std::begin(kRules), std::end(kRules), finding.rule) != std::end(kRules);
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

void CheckDamage(const Check& check, std::size_t line) {
  Findings& findings = *check.findings;
  findings.erase(std::remove_if(findings.begin(), findings.end(),
                                [&](const Finding& finding) {
                                  return finding.line >= line || !IsOfOneLine(finding);
                                }),
                 findings.end());
  check.Add("damaged", line, Severity::Error, kFile,
            "no text from line " + std::to_string(line) +
                " on: damaged, or line ends changed in transfer",
            check.reading.loads ? "what the printer gets from there on is chance"
                                : "the definition does not load",
            "transfer it anew, as a binary file");
}

void CheckEnd(const Check& check) {
  const LineIndex& lines = check.reading.lines;
  if (lines.IsEnded()) return;
  const std::size_t last = lines.Lines().size();
  Findings& findings = *check.findings;
  const auto isOfCut = [&](const Finding& finding) {
    return finding.line == last &&
           (finding.rule == "unknown-key" || finding.rule == "no-equals-sign");
  };
  findings.erase(std::remove_if(findings.begin(), findings.end(), isOfCut), findings.end());
  check
      .Add("no-line-end", std::max<std::size_t>(last, 1), Severity::Warning, kFile,
           "the last line has no end, so the file was perhaps cut off",
           "what followed would be missing", "see whether it is whole, and end the line")
      .certainty = Certainty::Likely;
}

}  // namespace

void CheckWhole(const Check& check) {
  if (const std::size_t line = FindDamage(check.reading.lines)) {
    CheckDamage(check, line);
  } else {
    CheckEnd(check);
  }
}

}  // namespace tavrin::tool
