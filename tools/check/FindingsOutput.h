#pragma once

#include <ostream>
#include <string>

#include <nlohmann/json.hpp>

#include "check/Finding.h"

namespace tavrin::tool {

/// Prints the finding as one line.
void PrintFinding(const std::string& file, const Finding& finding, bool inColor, std::ostream& out);

/// The finding as an object with the members file, line, severity, key, what, effect and remedy.
nlohmann::ordered_json ToJson(const std::string& file, const Finding& finding);

}  // namespace tavrin::tool
