#pragma once

#include <cstdint>
#include <string>

namespace tavrin {

/// A colour or an ink type.
struct IdentifiableData {
  virtual ~IdentifiableData() = default;

  std::int32_t code = 0;  ///< what slots name it by; any value, not necessarily unique
  std::string name;       ///< for people
};

}  // namespace tavrin
