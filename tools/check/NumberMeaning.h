#pragma once

#include <cstddef>
#include <optional>
#include <string>

#include "check/Finding.h"

namespace tavrin::tool {

/// What a field is to hold.
struct WantedNumber {
  bool isInteger = false;
  bool isAngle = false;       ///< else what is no integer is a length
  bool isInList = false;      ///< commas then end fields
  const char* off = nullptr;  ///< of a switch
};

/// What an author seems to have meant by a text that is not read as a number, or not as a whole.
struct NumberMeaning {
  const char* rule;
  std::string what;
  std::string number = {};  ///< as it is to be written; empty where the meaning cannot be told
  Certainty certainty = Certainty::None;
};

/// @return none when the text looks like nothing known.
std::optional<NumberMeaning> MeaningOf(const std::wstring& field, const WantedNumber& wanted);

/// A list of so many numbers, 0 for any, that is written with other separators, decimal commas or
/// brackets.
std::optional<NumberMeaning> MeaningOfList(const std::wstring& list, std::size_t count,
                                           bool ofIntegers);

}  // namespace tavrin::tool
