#include "Spelling.h"

#include <algorithm>
#include <numeric>

namespace tavrin::tool {

std::size_t SpellingDistance(const std::string& a, const std::string& b) {
  std::vector<std::size_t> row(b.size() + 1);
  std::iota(row.begin(), row.end(), std::size_t{0});
  for (const char c : a) {
    std::size_t diagonal = row[0]++;
    for (std::size_t j = 0; j < b.size(); ++j) {
      const std::size_t replaced = diagonal + (c == b[j] ? 0 : 1);
      diagonal = row[j + 1];
      row[j + 1] = std::min({replaced, diagonal + 1, row[j] + 1});
    }
  }
  return row.back();
}

std::string NearestName(const std::string& written, const std::vector<std::string>& names) {
  std::string nearest;
  std::size_t limit = written.size() / 4 + 2;
  for (const std::string& name : names) {
    const std::size_t distance = SpellingDistance(written, name);
    if (distance >= limit) continue;
    nearest = name;
    limit = distance;
  }
  return nearest;
}

}  // namespace tavrin::tool
