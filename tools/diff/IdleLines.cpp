#include "diff/IdleLines.h"

#include <algorithm>
#include <map>
#include <optional>

#include "definition/TextConversion.h"
#include "diff/FactChanges.h"
#include "edit/Assignment.h"

namespace tavrin::tool {

namespace {

/// Which lines of two texts belong together; the others are in one alone.
class Alignment {
 public:
  Alignment(const std::vector<std::string>& before, const std::vector<std::string>& after)
      : before_(before), after_(after) {
    while (begin_ < std::min(before.size(), after.size()) && before[begin_] == after[begin_])
      ++begin_;
    while (tail_ < std::min(before.size(), after.size()) - begin_ &&
           before[before.size() - 1 - tail_] == after[after.size() - 1 - tail_])
      ++tail_;
    Measure();
  }

  std::vector<LineChange> Changes() const {
    std::vector<LineChange> changes;
    std::size_t i = 0;
    std::size_t j = 0;
    const auto takeOld = [&] {
      changes.push_back({false, begin_ + i + 1, before_[begin_ + i]});
      ++i;
    };
    const auto takeNew = [&] {
      changes.push_back({true, begin_ + j + 1, after_[begin_ + j]});
      ++j;
    };
    while (i < Rows() && j < Columns()) {
      if (before_[begin_ + i] == after_[begin_ + j]) {
        ++i;
        ++j;
      } else if (CommonFrom(i + 1, j) >= CommonFrom(i, j + 1)) {
        takeOld();
      } else {
        takeNew();
      }
    }
    while (i < Rows())
      takeOld();
    while (j < Columns())
      takeNew();
    return changes;
  }

 private:
  std::size_t Rows() const { return before_.size() - begin_ - tail_; }
  std::size_t Columns() const { return after_.size() - begin_ - tail_; }
  std::uint32_t CommonFrom(std::size_t i, std::size_t j) const {
    return lengths_.empty() ? 0 : lengths_[i * (Columns() + 1) + j];
  }

  /// The length of the longest common sequence from every pair of lines on. Texts that differ in
  /// more lines than any definition has are taken as they come.
  void Measure() {
    constexpr std::size_t kMost = 4096;
    if (Rows() > kMost || Columns() > kMost) return;
    const std::size_t width = Columns() + 1;
    lengths_.resize((Rows() + 1) * width);
    for (std::size_t i = Rows(); i-- > 0;) {
      for (std::size_t j = Columns(); j-- > 0;) {
        lengths_[i * width + j] =
            before_[begin_ + i] == after_[begin_ + j]
                ? lengths_[(i + 1) * width + j + 1] + 1
                : std::max(lengths_[(i + 1) * width + j], lengths_[i * width + j + 1]);
      }
    }
  }

  const std::vector<std::string>& before_;
  const std::vector<std::string>& after_;
  std::size_t begin_ = 0;  ///< lines alike at the start
  std::size_t tail_ = 0;   ///< and at the end
  std::vector<std::uint32_t> lengths_;
};

/// Tells of keys whether what one definition has for them instead of the other matters.
class Effects {
 public:
  Effects(const Reading& before, const Reading& after) : before_(before), after_(after) {}

  bool IsOf(const std::string& key) {
    const auto known = byKey_.find(Folded(key));
    if (known != byKey_.end()) return known->second;
    const WatchedRead* before = before_.Find(key);
    const WatchedRead* after = after_.Find(key);
    if (before == nullptr && after == nullptr) return false;
    if (before != nullptr && after != nullptr && before->text == after->text) return false;
    // In one of them the key may wait for another, say for its mode to be listed.
    const bool matters = Matters(before_, after_, key) || Matters(after_, before_, key);
    return byKey_[Folded(key)] = matters;
  }

 private:
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

std::vector<LineChange> FindIdleLines(const Reading& before, const Reading& after) {
  std::vector<LineChange> changes = Alignment(before.lines.Lines(), after.lines.Lines()).Changes();
  Effects effects(before, after);
  const auto hasEffect = [&](const LineChange& change) {
    const std::string key = KeyIn(change.isNew ? after : before, change.number);
    return !key.empty() && effects.IsOf(key);
  };
  changes.erase(std::remove_if(changes.begin(), changes.end(), hasEffect), changes.end());
  return changes;
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
