#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "TavrinSession.h"
#include "check/Reading.h"

namespace tavrin::tool {

/// A colour or an ink type of the tables.
struct InkEntryFacts {
  std::int32_t code = 0;
  std::string name;
  std::vector<std::uint32_t> slots;  ///< that hold it; none of an entry that another one hides
};

/// What the library reads of a definition and no export hands out, or only as a part of something
/// else. Texts are in the process's code page.
struct HiddenFacts {
  tavrinlib::Micrometres supportExtend;
  double supportExtendAngle = 0.0;  ///< degrees
  tavrinlib::Micrometres cuttingMarginThickness;
  std::vector<tavrinlib::Micrometres> colorThicknesses;  ///< of the modes, in their order
  std::vector<std::int32_t> modesLeftOut;  ///< those listed that lack a key they must have
  std::vector<InkEntryFacts> colors;
  std::vector<InkEntryFacts> inkTypes;
  std::vector<std::string> categoryNames;  ///< of the ink categories, in their order
  // Whether the definition has none that the library could take.
  bool hasBuiltInColors = false;
  bool hasBuiltInInkTypes = false;
  bool hasBuiltInSlots = false;
};

/// REQUIRES: the definition loads.
HiddenFacts TakeHiddenFacts(const Reading& reading);

}  // namespace tavrin::tool
