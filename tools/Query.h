#pragma once

#include <string>

#include "Failure.h"
#include "Report.h"

namespace tavrin::tool {

/// Checks the result of a query. One that fails on a loaded definition leaves the report without a
/// footing.
inline void Ask(const Report& report, const char* query, bool answered) {
  if (!answered) throw Failure(report.File(), std::string(query) + " failed", "report this");
}

}  // namespace tavrin::tool
