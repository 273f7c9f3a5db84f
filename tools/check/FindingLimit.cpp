#include "check/FindingLimit.h"

#include <algorithm>

namespace tavrin::tool {

Findings LimitFindings(Findings findings, Severity threshold) {
  constexpr std::size_t kMost = 100;
  const auto isBelow = [&](const Finding& finding) { return finding.severity < threshold; };
  const auto isGraver = [](const Finding& a, const Finding& b) { return a.severity > b.severity; };
  findings.erase(std::remove_if(findings.begin(), findings.end(), isBelow), findings.end());
  if (findings.size() <= kMost) return findings;
  const std::size_t last = findings.back().line;
  std::stable_sort(findings.begin(), findings.end(), isGraver);
  const std::size_t others = findings.size() - kMost;
  const Severity gravest = findings[kMost].severity;
  findings.resize(kMost);
  std::stable_sort(findings.begin(), findings.end(),
                   [](const Finding& a, const Finding& b) { return a.line < b.line; });
  findings.push_back({"more-findings", last, gravest, "file",
                      std::to_string(others) + " more " + (others == 1 ? "finding" : "findings"),
                      others == 1 ? "it is not shown" : "they are not shown",
                      "follow the remedies above first"});
  return findings;
}

}  // namespace tavrin::tool
