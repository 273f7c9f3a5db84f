#pragma once

#include <string>

#include "check/Finding.h"
#include "check/Reading.h"
#include "files/FileTransfer.h"

namespace tavrin::tool {

/// A plain definition after its certain remedies were followed.
struct Fix {
  Bytes plain;
  Findings followed;  ///< as they were found, round by round
};

/// Follows what is certain until nothing certain is left, as one remedy can bring up the next.
/// Every byte that no remedy names stays.
Fix FollowCertainRemedies(const Reading& reading);

/// The lines in which two definitions differ, as a unified diff without context;
/// empty when none does.
std::string DifferenceOf(const std::string& file, const Bytes& before, const Bytes& after);

}  // namespace tavrin::tool
