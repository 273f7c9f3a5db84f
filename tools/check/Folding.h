#pragma once

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <set>
#include <string>
#include <utility>
#include <vector>

#include "check/Finding.h"
#include "check/Reading.h"

namespace tavrin::tool {

/// Findings of which some follow from others: these are folded into their cause.
class Folding {
 public:
  /// What is known of the key that a finding is about, or of the one that was meant.
  struct Subject {
    std::string shape;
    std::string governor;
    std::int32_t number = 0;
  };
  using Indices = std::vector<std::size_t>;
  static constexpr std::size_t kNone = static_cast<std::size_t>(-1);

  Folding(const Reading& definition, Findings findings)
      : reading(definition), findings_(std::move(findings)), gone_(findings_.size()) {}

  Finding& At(std::size_t index) { return findings_[index]; }
  Subject SubjectOf(const Finding& finding) const;
  /// Those that are left and meet the condition, in their order.
  template <typename Condition>
  Indices Find(Condition condition) const;
  /// The first of them; kNone without one.
  template <typename Condition>
  std::size_t First(Condition condition) const {
    const Indices found = Find(condition);
    return found.empty() ? kNone : found.front();
  }
  /// The numbers of their subjects.
  std::set<std::int32_t> NumbersOf(const Indices& indices) const;

  std::set<std::size_t> LinesOf(const Indices& indices) const;

  /// Takes the consequences out; the cause gets the worst severity and says what they come to.
  void Fold(std::size_t cause, const Indices& consequences);
  /// The same for all that is said of modes which the cause keeps from the printer.
  void FoldModes(std::size_t cause, const std::set<std::int32_t>& modes);
  /// Makes one finding of several, with the edits of all. The first of them stays.
  void Join(const Indices& indices);
  std::size_t Add(const Finding& finding);

  /// What is left.
  Findings Kept() const;

  const Reading& reading;

 private:
  Findings findings_;
  std::vector<bool> gone_;
};

template <typename Condition>
Folding::Indices Folding::Find(Condition condition) const {
  Indices found;
  for (std::size_t i = 0; i < findings_.size(); ++i) {
    if (!gone_[i] && condition(findings_[i])) found.push_back(i);
  }
  return found;
}

/// The numbers, separated by commas, in at most 40 characters.
std::string Listed(const std::set<std::int32_t>& numbers);

/// That the lines have no effect.
std::string Idle(const std::set<std::size_t>& lines);

// Each folds or joins what one kind of mistake brings on.

/// A line that was to be another key, and what the lack of that key does.
void FoldIntoMeantKeys(Folding* folding);
/// A count or list that is missing, wrong or too short for the keys of the file.
void FoldIntoCount(Folding* folding, const std::string& governor);

/// A key that is there more than twice.
void JoinRepeatedKeys(Folding* folding);
/// Keys with a number that is taken or that nothing asks for, where another number is missing.
void JoinWrongNumbers(Folding* folding);
/// Entries from 0 to one below the count, which are those from 1 to the count.
void JoinNumbersFromZero(Folding* folding, const std::string& governor);
/// One habit of spelling or numbering, which brings on a finding a line.
void JoinHabits(Folding* folding);

/// One mode's missing keys, those too that are not asked for because of the first.
void JoinMissingModeKeys(Folding* folding);

/// The same for slots.
void JoinMissingSlotCodes(Folding* folding);
/// A code that was copied, and the slots that name the one in its place.
void FoldIntoSameCodes(Folding* folding);
/// Slots that name one code which is not there.
void JoinUnknownCodes(Folding* folding);
/// Slots without ink and categories without slots, which nobody writes.
void FoldSlots(Folding* folding);

}  // namespace tavrin::tool
