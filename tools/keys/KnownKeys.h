#pragma once

#include <cstdint>
#include <string>
#include <vector>

namespace tavrin::tool {

/// A key that the reading code knows. One that is numbered stands for a key of each number.
struct KnownKey {
  std::string prefix;
  std::string suffix = {};
  int digits = 0;  ///< the least width of the number; 0: the key is not numbered

  /// The key with '#' for its number.
  std::string Shape() const { return digits == 0 ? prefix : prefix + '#' + suffix; }
  std::string WithNumber(std::int32_t number) const;
  /// Whether name is this key; number is then its number, or 0.
  bool Matches(const std::string& name, std::int32_t* number) const;
};

/// Every key that the reading code can ask for, found by answering all that it asks.
std::vector<KnownKey> ListKnownKeys();

}  // namespace tavrin::tool
