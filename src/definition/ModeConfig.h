#pragma once

#include <cstdint>

namespace tavrin {

/// One print mode. The second value of the pair stands before the first, as the mode query hands
/// them out.
struct ModeConfig {
  virtual ~ModeConfig() = default;

  std::int32_t Number = 0;              ///< as listed in "Mode"
  std::int32_t SliceSize = 0;           ///< slice height in µm; may be 0 or negative
  std::int32_t ColorThickness = 0;      ///< colour layer thickness in µm
  std::int32_t SecondValue = 0;         ///< second field of the mode's pair
  std::int32_t FirstValue = 0;          ///< first field of the mode's pair
  bool Limited = false;                 ///< listed in "LimitationMode"
  std::int32_t LimitedContinuous = -1;  ///< limit of a continuous run; -1: none given
};

}  // namespace tavrin
