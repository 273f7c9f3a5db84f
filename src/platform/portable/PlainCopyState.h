#pragma once

#include <cstdint>

#include "platform/PlainCopy.h"
#include "platform/portable/Descriptor.h"

namespace tavrin::platform {

class PlainCopy::State {
 public:
  Descriptor file;         ///< stands at the start of what was written
  std::uint32_t size = 0;  ///< of what was to be written
};

}  // namespace tavrin::platform
