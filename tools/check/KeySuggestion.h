#pragma once

#include <cstdint>
#include <string>

#include "check/Finding.h"
#include "check/Reading.h"

namespace tavrin::tool {

/// What the name of a line that nothing reads was to be.
struct KeySuggestion {
  std::string key = {};  ///< one that the file lacks and that takes the line's value
  Certainty certainty = Certainty::None;  ///< None: there is no such key
  const KeyLine* present = nullptr;       ///< the line of a key that the file has, if that is meant
};

KeySuggestion SuggestKey(const Reading& reading, const std::string& name, const std::string& value);

/// Whether the key takes the value as it is or but for a slip.
bool Takes(const Reading& reading, const std::string& key, const std::string& value);

/// Whether keys of the number are asked for through the governor, or would be if no earlier one had
/// stopped the reading; what is amiss is then said of that one.
bool IsCalledFor(const Reading& reading, const std::string& governor, std::int32_t number);

}  // namespace tavrin::tool
