#pragma once

#include <string>

namespace tavrin::tool {

/// A plain definition with every key explained, which loads to the built-in defaults.
std::string MakeTemplate();

}  // namespace tavrin::tool
