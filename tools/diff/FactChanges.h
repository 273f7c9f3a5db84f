#pragma once

#include <string>
#include <vector>

#include "diff/FactList.h"

namespace tavrin::tool {

/// One thing that two definitions differ in.
struct FactChange {
  enum class Kind { Changed, New, Gone };

  Kind kind = Kind::Changed;
  /// The fact before and after; of something new or gone all its facts, on their side alone.
  std::vector<Fact> before = {};
  std::vector<Fact> after = {};

  /// One of them, for what all have alike.
  const Fact& Any() const { return before.empty() ? after.front() : before.front(); }
  /// Whether hosts get any of it.
  bool IsHandedOut() const;
  bool IsDetail() const;
};

using FactChanges = std::vector<FactChange>;

/// What changes from one list to the other, in the order of the groups. Values are the same when
/// they are the same to the library.
FactChanges CompareFacts(const std::vector<Fact>& before, const std::vector<Fact>& after);

/// The changes for people, a line each under the titles of their groups; empty when there is none.
std::string ChangesAsText(const FactChanges& changes);

/// What a change of a definition comes to, for people.
std::string OutcomeAsText(const Reading& before, const Reading& after);

}  // namespace tavrin::tool
