#pragma once

#include <set>
#include <string>

#include "check/Finding.h"
#include "check/LineIndex.h"

namespace tavrin::tool {

/// The ids that comments of the form "; tavrin-check: ignore ID, ID" name. What follows them in the
/// line is a remark.
std::set<std::string> IgnoredBy(const LineIndex& lines);

void DropIgnored(const std::set<std::string>& rules, Findings* findings);

}  // namespace tavrin::tool
