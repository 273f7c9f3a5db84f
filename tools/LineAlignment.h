#pragma once

#include <cstddef>
#include <string>
#include <vector>

namespace tavrin::tool {

/// Lines of one text that stand where another one has others; either may be none. Counted from 0,
/// the ends are behind the last.
struct LineDifference {
  std::size_t oldBegin;
  std::size_t oldEnd;
  std::size_t newBegin;
  std::size_t newEnd;
};

/// In what two texts differ, from the first line to the last. All other lines are in both, in the
/// same order.
std::vector<LineDifference> AlignLines(const std::vector<std::string>& before,
                                       const std::vector<std::string>& after);

}  // namespace tavrin::tool
