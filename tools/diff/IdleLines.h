#pragma once

#include <cstddef>
#include <string>
#include <vector>

#include "check/Reading.h"

namespace tavrin::tool {

/// A line that one of two definitions has and the other has not.
struct LineChange {
  bool isNew;
  std::size_t number;  ///< from 1, in its definition
  std::string text;    ///< as it stands, without its end
};

struct IdleLines {
  std::vector<LineChange> lines = {};
  bool areAll = true;  ///< false when more keys differ than could be tried one by one
};

/// Of the lines in which two definitions differ those that make no difference to the printer:
/// comments, keys that nothing reads, values that are spelt otherwise. In the order in which a
/// reader of both meets them.
///
/// REQUIRES: both definitions load.
IdleLines FindIdleLines(const Reading& before, const Reading& after);

/// In what else the bytes differ, such as their line ends; empty where nothing does.
std::vector<std::string> OtherDifferences(const Reading& before, const Reading& after);

}  // namespace tavrin::tool
