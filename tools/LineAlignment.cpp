#include "LineAlignment.h"

#include <algorithm>
#include <cstdint>
#include <iterator>
#include <map>
#include <utility>

namespace tavrin::tool {

namespace {

/// A number for each text, the same for the same.
using Lines = std::vector<std::size_t>;

struct Pair {
  std::size_t old;
  std::size_t now;
};

class Alignment {
 public:
  Alignment(const std::vector<std::string>& before, const std::vector<std::string>& after) {
    std::map<std::string, std::size_t> numbers;
    for (const std::string& line : before)
      old_.push_back(numbers.emplace(line, numbers.size()).first->second);
    for (const std::string& line : after)
      now_.push_back(numbers.emplace(line, numbers.size()).first->second);
    Align({0, old_.size(), 0, now_.size()}, 0);
  }

  std::vector<LineDifference> TakeDifferences() { return std::move(differences_); }

 private:
  void Align(LineDifference part, int depth) {
    constexpr std::size_t kMostCells = std::size_t{1} << 20;
    constexpr int kMostDepth = 8;
    for (; part.oldBegin < part.oldEnd && part.newBegin < part.newEnd &&
           old_[part.oldBegin] == now_[part.newBegin];
         ++part.oldBegin)
      ++part.newBegin;
    for (; part.oldBegin < part.oldEnd && part.newBegin < part.newEnd &&
           old_[part.oldEnd - 1] == now_[part.newEnd - 1];
         --part.oldEnd)
      --part.newEnd;
    const std::size_t rows = part.oldEnd - part.oldBegin;
    const std::size_t columns = part.newEnd - part.newBegin;
    if (rows == 0 || columns == 0) {
      Add(part);
      return;
    }
    const bool isSmall = rows <= kMostCells / columns;
    // A text may be made to have a line to hold on to between any two.
    const std::vector<Pair> common = isSmall              ? LongestCommonSequence(part)
                                     : depth < kMostDepth ? Anchors(part)
                                                          : std::vector<Pair>();
    const auto take = [&](const LineDifference& gap) {
      if (isSmall || common.empty()) {
        Add(gap);
      } else {
        Align(gap, depth + 1);
      }
    };
    for (const Pair& pair : common) {
      take({part.oldBegin, pair.old, part.newBegin, pair.now});
      part.oldBegin = pair.old + 1;
      part.newBegin = pair.now + 1;
    }
    take(part);
  }

  void Add(const LineDifference& difference) {
    if (difference.oldBegin == difference.oldEnd && difference.newBegin == difference.newEnd)
      return;
    differences_.push_back(difference);
  }

  std::vector<Pair> LongestCommonSequence(const LineDifference& part) const {
    const std::size_t rows = part.oldEnd - part.oldBegin;
    const std::size_t columns = part.newEnd - part.newBegin;
    const std::size_t width = columns + 1;
    // How long it is from every pair of lines on.
    std::vector<std::uint32_t> lengths((rows + 1) * width);
    const auto isSame = [&](std::size_t i, std::size_t j) {
      return old_[part.oldBegin + i] == now_[part.newBegin + j];
    };
    for (std::size_t i = rows; i-- > 0;) {
      for (std::size_t j = columns; j-- > 0;) {
        lengths[i * width + j] =
            isSame(i, j) ? lengths[(i + 1) * width + j + 1] + 1
                         : std::max(lengths[(i + 1) * width + j], lengths[i * width + j + 1]);
      }
    }
    std::vector<Pair> common;
    for (std::size_t i = 0, j = 0; i < rows && j < columns;) {
      if (isSame(i, j)) {
        common.push_back({part.oldBegin + i++, part.newBegin + j++});
      } else if (lengths[(i + 1) * width + j] >= lengths[i * width + j + 1]) {
        ++i;
      } else {
        ++j;
      }
    }
    return common;
  }

  /// The lines that either text has once, as many as follow each other in both; where there are
  /// none, of lines that both have the first of the one with the first of the other, and so on.
  std::vector<Pair> Anchors(const LineDifference& part) const {
    struct Places {
      std::vector<std::size_t> old;
      std::vector<std::size_t> now;
    };
    std::map<std::size_t, Places> places;
    for (std::size_t i = part.oldBegin; i < part.oldEnd; ++i)
      places[old_[i]].old.push_back(i);
    for (std::size_t j = part.newBegin; j < part.newEnd; ++j)
      places[now_[j]].now.push_back(j);
    std::vector<Pair> once;
    std::vector<Pair> all;
    for (const auto& place : places) {
      const Places& line = place.second;
      if (line.old.size() == 1 && line.now.size() == 1) once.push_back({line.old[0], line.now[0]});
      for (std::size_t i = 0; i < std::min(line.old.size(), line.now.size()); ++i)
        all.push_back({line.old[i], line.now[i]});
    }
    return LongestRising(once.empty() ? std::move(all) : std::move(once));
  }

  /// The most of the pairs that are in the order of both texts.
  static std::vector<Pair> LongestRising(std::vector<Pair> pairs) {
    std::sort(pairs.begin(), pairs.end(),
              [](const Pair& a, const Pair& b) { return a.old < b.old; });
    constexpr std::size_t kNone = static_cast<std::size_t>(-1);
    std::vector<std::size_t> lasts;  // by length, the pair with the first new line that ends one
    std::vector<std::size_t> previous(pairs.size(), kNone);
    for (std::size_t i = 0; i < pairs.size(); ++i) {
      const auto place = std::lower_bound(
          lasts.begin(), lasts.end(), pairs[i].now,
          [&](std::size_t last, std::size_t line) { return pairs[last].now < line; });
      if (place != lasts.begin()) previous[i] = *std::prev(place);
      if (place == lasts.end()) {
        lasts.push_back(i);
      } else {
        *place = i;
      }
    }
    std::vector<Pair> rising;
    for (std::size_t i = lasts.empty() ? kNone : lasts.back(); i != kNone; i = previous[i])
      rising.push_back(pairs[i]);
    std::reverse(rising.begin(), rising.end());
    return rising;
  }

  Lines old_;
  Lines now_;
  std::vector<LineDifference> differences_;
};

}  // namespace

std::vector<LineDifference> AlignLines(const std::vector<std::string>& before,
                                       const std::vector<std::string>& after) {
  return Alignment(before, after).TakeDifferences();
}

}  // namespace tavrin::tool
