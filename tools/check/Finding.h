#pragma once

#include <cstddef>
#include <string>
#include <vector>

namespace tavrin::tool {

enum class Severity {
  Note,     ///< a default is used
  Warning,  ///< something written has no effect or a surprising one
  Error     ///< the definition does not load, or a query fails
};

/// One thing that an author should know about a definition.
struct Finding {
  std::size_t line;
  Severity severity;
  std::string key;
  std::string what;    ///< what happened
  std::string effect;  ///< what the printer gets instead
  std::string remedy;  ///< what to do
};

using Findings = std::vector<Finding>;

}  // namespace tavrin::tool
