#pragma once

#include <cstddef>
#include <string>
#include <vector>

namespace tavrin::tool {

/// How many letters have to be put in, taken out or replaced to make one text of the other.
std::size_t SpellingDistance(const std::string& a, const std::string& b);

/// The name that is most likely meant; empty when none is near.
std::string NearestName(const std::string& written, const std::vector<std::string>& names);

}  // namespace tavrin::tool
