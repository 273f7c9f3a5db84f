#pragma once

#include <cstddef>
#include <string>

namespace tavrin::tool {

/// How many letters have to be put in, taken out or replaced to make one text of the other.
std::size_t SpellingDistance(const std::string& a, const std::string& b);

}  // namespace tavrin::tool
