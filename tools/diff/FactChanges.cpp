#include "diff/FactChanges.h"

#include <algorithm>
#include <map>
#include <set>
#include <utility>

#include "files/TextForms.h"

namespace tavrin::tool {

namespace {

using Kind = FactChange::Kind;
using Role = Fact::Role;

using ItemName = std::pair<Fact::Group, std::string>;

/// The facts of one side by what has them. The printer itself is an item like any other.
class Items {
 public:
  explicit Items(const std::vector<Fact>& facts) {
    for (const Fact& fact : facts) {
      const ItemName name = {fact.group, fact.item};
      if (items_[name].empty()) order_.push_back(name);
      items_[name].push_back(fact);
    }
  }

  const std::vector<ItemName>& Order() const { return order_; }
  /// Empty when there is no such item.
  const std::vector<Fact>& Find(const ItemName& name) const {
    static const std::vector<Fact> kNone;
    const auto found = items_.find(name);
    return found == items_.end() ? kNone : found->second;
  }

 private:
  std::vector<ItemName> order_;
  std::map<ItemName, std::vector<Fact>> items_;
};

/// The elements that the other list has as well.
std::vector<std::int64_t> CommonPart(const Fact& list, const Fact& other) {
  const auto& numbers = std::get<std::vector<std::int64_t>>(list.value);
  const auto& others = std::get<std::vector<std::int64_t>>(other.value);
  std::multiset<std::int64_t> left(others.begin(), others.end());
  std::vector<std::int64_t> common;
  for (const std::int64_t number : numbers) {
    const auto found = left.find(number);
    if (found == left.end()) continue;
    left.erase(found);
    common.push_back(number);
  }
  return common;
}

bool IsSame(const Fact& before, const Fact& after) {
  if (before.role == Role::Order) return CommonPart(before, after) == CommonPart(after, before);
  // The text is exact, and that of every NaN the same.
  return before.value.index() == after.value.index() &&
         TextOf(before.value, before.unit) == TextOf(after.value, after.unit);
}

void CompareItem(const std::vector<Fact>& before, const std::vector<Fact>& after,
                 FactChanges* changes) {
  for (std::size_t i = 0; i < before.size(); ++i) {
    if (!IsSame(before[i], after[i])) changes->push_back({Kind::Changed, {before[i]}, {after[i]}});
  }
}

/// A cause counts where it has an effect in its group.
void DropIdleCauses(FactChanges* changes) {
  std::set<Fact::Group> groups;
  for (const FactChange& change : *changes) {
    if (change.Any().role != Role::Cause) groups.insert(change.Any().group);
  }
  const auto isIdle = [&](const FactChange& change) {
    return change.Any().role == Role::Cause && groups.count(change.Any().group) == 0;
  };
  changes->erase(std::remove_if(changes->begin(), changes->end(), isIdle), changes->end());
}

std::string FactText(const Fact& fact) {
  return (fact.field.empty() ? "" : fact.field + ' ') + TextOf(fact.value, fact.unit);
}

std::string SummaryOf(const std::vector<Fact>& facts) {
  std::string summary;
  for (const Fact& fact : facts) {
    if (fact.role == Role::Detail || std::holds_alternative<std::monostate>(fact.value)) continue;
    summary += (summary.empty() ? "" : ", ") + FactText(fact);
  }
  return summary;
}

std::string LineOf(const FactChange& change) {
  const Fact& fact = change.Any();
  std::string line = fact.item;
  if (change.kind == Kind::Changed) {
    if (!line.empty() && !fact.field.empty()) line += ' ';
    line += fact.field + ' ' + TextOf(change.before.front().value, fact.unit) + " -> " +
            TextOf(change.after.front().value, fact.unit);
  } else if (change.kind == Kind::New) {
    line += " new: " + SummaryOf(change.after);
  } else {
    line += " gone: " + SummaryOf(change.before);
  }
  return "  " + line +
         (change.IsHandedOut() || fact.role == Role::Cause ? "" : " (not handed out)");
}

ItemName ItemOf(const FactChange& change) {
  return {change.Any().group, change.Any().item};
}

}  // namespace

bool FactChange::IsHandedOut() const {
  const auto isHandedOut = [](const Fact& fact) { return fact.isHandedOut; };
  return std::any_of(before.begin(), before.end(), isHandedOut) ||
         std::any_of(after.begin(), after.end(), isHandedOut);
}

bool FactChange::IsDetail() const {
  return kind == Kind::Changed && Any().role == Role::Detail;
}

FactChanges CompareFacts(const std::vector<Fact>& before, const std::vector<Fact>& after) {
  const Items old(before);
  const Items now(after);
  FactChanges changes;
  for (const ItemName& name : old.Order()) {
    if (now.Find(name).empty()) {
      changes.push_back({Kind::Gone, old.Find(name), {}});
    } else {
      CompareItem(old.Find(name), now.Find(name), &changes);
    }
  }
  for (const ItemName& name : now.Order()) {
    if (old.Find(name).empty()) changes.push_back({Kind::New, {}, now.Find(name)});
  }
  DropIdleCauses(&changes);
  std::stable_sort(changes.begin(), changes.end(), [](const FactChange& a, const FactChange& b) {
    return a.Any().group < b.Any().group;
  });
  return changes;
}

std::string ChangesAsText(const FactChanges& changes) {
  std::set<ItemName> told;  // those whose details follow from what is said of them anyway
  for (const FactChange& change : changes) {
    if (!change.IsDetail()) told.insert(ItemOf(change));
  }
  std::string text;
  const Fact* last = nullptr;
  for (const FactChange& change : changes) {
    if (change.IsDetail() && told.count(ItemOf(change)) != 0) continue;
    if (last == nullptr || last->group != change.Any().group)
      text += std::string(TitleOf(change.Any().group)) + '\n';
    last = &change.Any();
    text += Printable(LineOf(change)) + '\n';
  }
  return text;
}

std::string OutcomeAsText(const Reading& before, const Reading& after) {
  if (!after.loads) return "The definition does not load.\n";
  if (!before.loads) return "The definition loads now.\n";
  const std::string changes = ChangesAsText(CompareFacts(ListFacts(before), ListFacts(after)));
  return changes.empty() ? "The printer gets the same.\n" : changes;
}

}  // namespace tavrin::tool
