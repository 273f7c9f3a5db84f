#include "diff/IdleLines.h"

#include <algorithm>
#include <cmath>
#include <map>
#include <optional>
#include <utility>

#include "LineAlignment.h"
#include "definition/TextConversion.h"
#include "diff/FactChanges.h"
#include "edit/Assignment.h"

namespace tavrin::tool {

namespace {

std::vector<LineChange> ChangedLines(const std::vector<std::string>& before,
                                     const std::vector<std::string>& after) {
  std::vector<LineChange> changes;
  for (const LineDifference& difference : AlignLines(before, after)) {
    for (std::size_t i = difference.oldBegin; i < difference.oldEnd; ++i)
      changes.push_back({false, i + 1, before[i]});
    for (std::size_t i = difference.newBegin; i < difference.newEnd; ++i)
      changes.push_back({true, i + 1, after[i]});
  }
  return changes;
}

bool IsSame(const WatchedRead& before, const WatchedRead& after) {
  if (before.text == after.text) return true;
  return before.converted && after.converted && before.number == after.number &&
         std::signbit(before.number) == std::signbit(after.number);
}

/// Tells of keys whether what one definition has for them instead of the other matters.
class Effects {
 public:
  Effects(const Reading& before, const Reading& after)
      : before_(before),
        after_(after),
        triesLeft_(kMostBytesTried / (before.plain.size() + after.plain.size())) {}

  /// A key that could not be tried counts as one that matters.
  bool IsOf(const std::string& key) {
    const auto known = byKey_.find(Folded(key));
    if (known != byKey_.end()) return known->second;
    const WatchedRead* before = before_.Find(key);
    const WatchedRead* after = after_.Find(key);
    if (before == nullptr && after == nullptr) return false;
    if (before != nullptr && after != nullptr && IsSame(*before, *after)) return false;
    areAllTried_ = areAllTried_ && triesLeft_ > 0;
    if (triesLeft_ == 0) return true;
    --triesLeft_;
    // In one of them the key may wait for another, say for its mode to be listed.
    const bool matters = Matters(before_, after_, key) || Matters(after_, before_, key);
    return byKey_[Folded(key)] = matters;
  }

  bool AreAllTried() const { return areAllTried_; }

 private:
  /// Each try reads a definition anew: some seconds in all.
  static constexpr std::size_t kMostBytesTried = 20'000'000;

  static std::optional<std::string> ValueIn(const Reading& reading, const std::string& key) {
    const WatchedRead* read = reading.Find(key);
    if (read != nullptr && read->found) return NarrowCopy(read->text);
    const KeyLine* line = reading.lines.Find(key);
    return line == nullptr ? std::nullopt : std::optional<std::string>(line->value);
  }

  static bool Matters(const Reading& definition, const Reading& source, const std::string& key) {
    const Reading changed(Assigned(definition.plain, {key, ValueIn(source, key)}));
    return !changed.loads || !CompareFacts(ListFacts(definition), ListFacts(changed)).empty();
  }

  const Reading& before_;
  const Reading& after_;
  std::map<std::string, bool> byKey_;
  std::size_t triesLeft_;
  bool areAllTried_ = true;
};

/// The key that counts in the line; empty when there is none.
std::string KeyIn(const Reading& reading, std::size_t number) {
  const auto& keys = reading.lines.Keys();
  const auto line =
      std::lower_bound(keys.begin(), keys.end(), number,
                       [](const KeyLine& key, std::size_t wanted) { return key.number < wanted; });
  const bool counts =
      line != keys.end() && line->number == number && reading.lines.Find(line->name) == &*line;
  return counts ? line->name : std::string();
}

std::string LineEndsOf(const Reading& reading) {
  const std::string text = TextOf(reading.plain, reading.lines.Format());
  const auto lineFeeds = std::count(text.begin(), text.end(), '\n');
  const auto returns = std::count(text.begin(), text.end(), '\r');
  if (lineFeeds + returns == 0) return "none";
  if (returns == 0) return "LF";
  if (lineFeeds == 0) return "CR";
  return lineFeeds == returns ? "CR LF" : "mixed";
}

std::string EncodingOf(const Reading& reading) {
  const TextFormat& format = reading.lines.Format();
  if (format.unitLength == 2) return format.lowByte == 0 ? "UTF-16" : "UTF-16, big-endian";
  return format.markLength == 0 ? "the user's" : "the user's, with the mark of UTF-8";
}

}  // namespace

IdleLines FindIdleLines(const Reading& before, const Reading& after) {
  std::vector<LineChange> changes = ChangedLines(before.lines.Lines(), after.lines.Lines());
  Effects effects(before, after);
  const auto hasEffect = [&](const LineChange& change) {
    const std::string key = KeyIn(change.isNew ? after : before, change.number);
    return !key.empty() && effects.IsOf(key);
  };
  changes.erase(std::remove_if(changes.begin(), changes.end(), hasEffect), changes.end());
  return {std::move(changes), effects.AreAllTried()};
}

std::vector<std::string> OtherDifferences(const Reading& before, const Reading& after) {
  std::vector<std::string> differences;
  const auto compare = [&](const char* what, const std::string& old, const std::string& now) {
    if (old != now) differences.push_back(std::string(what) + ' ' + old + " -> " + now);
  };
  compare("Line ends", LineEndsOf(before), LineEndsOf(after));
  compare("Encoding", EncodingOf(before), EncodingOf(after));
  if (before.lines.IsEnded() != after.lines.IsEnded()) {
    compare("End of the last line", before.lines.IsEnded() ? "there" : "missing",
            after.lines.IsEnded() ? "there" : "missing");
  }
  return differences;
}

}  // namespace tavrin::tool
