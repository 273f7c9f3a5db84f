#pragma once

#include <string>

#include "check/Reading.h"
#include "files/FileTransfer.h"

namespace tavrin::tool {

/// The plain definition after what is certain was followed until nothing certain is left, as one
/// remedy can bring up the next. Every byte that no remedy names stays.
Bytes FollowCertainRemedies(const Reading& reading);

/// The lines in which two definitions differ, as a unified diff without context; empty when none
/// does.
std::string DifferenceOf(const std::string& file, const Bytes& before, const Bytes& after);

}  // namespace tavrin::tool
