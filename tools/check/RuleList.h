#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace tavrin::tool {

/// A kind of finding.
struct Rule {
  /// What a finding of the kind is drawn from.
  enum class Scope {
    File,  ///< several lines, so that it means nothing where lines were lost
    Line   ///< its line alone
  };

  std::string_view id;       ///< for scripts and for comments in definitions; never changes
  std::string_view summary;  ///< one sentence
  Scope scope = Scope::File;
};

/// Every kind, in the order of the ids.
const std::vector<Rule>& ListRules();

/// The ids of all.
std::vector<std::string> RuleIds();

/// The kind of this id; null when there is none.
const Rule* FindRule(std::string_view id);

}  // namespace tavrin::tool
