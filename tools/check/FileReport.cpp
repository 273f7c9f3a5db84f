#include "check/FileReport.h"

#include <algorithm>

namespace tavrin::tool {

ExitStatus FileReport::Status() const {
  if (!failure.empty()) return ExitStatus::FileFailed;
  const auto worst =
      std::max_element(findings.begin(), findings.end(),
                       [](const Finding& a, const Finding& b) { return a.severity < b.severity; });
  if (worst == findings.end() || worst->severity == Severity::Note)
    return ExitStatus::NothingToReport;
  return worst->severity == Severity::Error ? ExitStatus::Errors : ExitStatus::SomethingToLookAt;
}

const char* NameOf(Severity severity) {
  constexpr const char* kNames[] = {"note", "warning", "error"};
  return kNames[static_cast<std::size_t>(severity)];
}

const char* NameOf(Certainty certainty) {
  constexpr const char* kNames[] = {"none", "likely", "certain"};
  return kNames[static_cast<std::size_t>(certainty)];
}

std::string Sentence(const Finding& finding) {
  constexpr const char* kCertainties[] = {"", " (likely: look first)", " (certain)"};
  return finding.key + ": " + finding.what + ", " + finding.effect + ", " + finding.remedy +
         (finding.edits.empty() ? kCertainties[static_cast<std::size_t>(finding.certainty)]
                                : " (certain: --fix does it)");
}

}  // namespace tavrin::tool
