#include "edit/FindingChanges.h"

#include <set>
#include <string>
#include <tuple>

#include "check/Rules.h"

namespace tavrin::tool {

namespace {

using Identity = std::tuple<Severity, std::string, std::string, std::string>;

/// What makes a finding the same although other lines moved its own.
Identity IdentityOf(const Finding& finding) {
  return {finding.severity, finding.rule, finding.key, finding.what};
}

/// Those that the others have not.
Findings Without(const Findings& findings, const Findings& others) {
  std::multiset<Identity> known;
  for (const Finding& finding : others)
    known.insert(IdentityOf(finding));
  Findings left;
  for (const Finding& finding : findings) {
    const auto found = known.find(IdentityOf(finding));
    if (found != known.end()) {
      known.erase(found);
    } else if (finding.severity != Severity::Note) {
      left.push_back(finding);
    }
  }
  return left;
}

}  // namespace

FindingChanges::FindingChanges(const Reading& before, const Reading& after) {
  const Findings old = FindAll(before);
  const Findings now = FindAll(after);
  brought = Without(now, old);
  mended = Without(old, now);
}

}  // namespace tavrin::tool
