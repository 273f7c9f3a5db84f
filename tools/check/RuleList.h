#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace tavrin::tool {

/// A kind of finding.
struct Rule {
  std::string_view id;       ///< for scripts and for comments in definitions; never changes
  std::string_view summary;  ///< one sentence
};

/// Every kind, in the order of the ids.
const std::vector<Rule>& ListRules();

/// The ids of all.
std::vector<std::string> RuleIds();

/// Whether a kind has this id.
bool IsRule(std::string_view id);

}  // namespace tavrin::tool
