#pragma once

#include <string>

#include "check/Finding.h"

namespace tavrin::tool {

/// What speaks against a text as the address of a machine.
struct AddressDoubt {
  std::string what = {};  ///< empty: nothing
  std::string meant = {};
  Certainty certainty = Certainty::None;
};

/// Names of machines and IPv6 addresses are taken as they are, and no address is none.
AddressDoubt DoubtAbout(const std::string& text);

}  // namespace tavrin::tool
