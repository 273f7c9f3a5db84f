#pragma once

#include <cstddef>
#include <set>
#include <string>
#include <utility>

#include "check/Rules.h"

namespace tavrin::tool {

/// The keys of whose values something has been said by now: one mistake is one finding. Of a line
/// that is to be written otherwise the value as it is read has consequences all the same.
class JudgedKeys {
 public:
  explicit JudgedKeys(const Check& check) : reading_(check.reading) {
    for (const Finding& finding : *check.findings) {
      if (finding.severity > Severity::Note && finding.meant != finding.key)
        judged_.emplace(finding.line, finding.key);
    }
  }

  bool Contains(const std::string& key) const {
    return judged_.count({reading_.LineOf(key), Shortened(key)}) != 0;
  }

 private:
  const Reading& reading_;
  std::set<std::pair<std::size_t, std::string>> judged_;
};

}  // namespace tavrin::tool
