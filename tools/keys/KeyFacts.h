#pragma once

#include <cstdint>
#include <string>

#include "definition/PrinterConfig.h"

namespace tavrin::tool {

/// What there is to say of a known key beside what watching its read tells.
struct KeyFacts {
  enum class Form { Text, Integer, Integers, Number, Numbers };

  const char* shape;
  /// What becomes of the printer when the key gives no value, '#' being the key's number; where it
  /// is null, value says what the configuration has.
  const char* without;
  std::string (*value)(const PrinterConfig& config);
  /// The key that decides whether this one is asked for, if any does.
  const char* governor = nullptr;
  /// What reading code that asks for a text does with it.
  Form form = Form::Text;
  std::size_t fields = 0;  ///< of a list; 0: any number

  /// What the printer gets when the key, of that number, gives no value.
  std::string Outcome(const PrinterConfig& config, std::int32_t number) const;
};

/// REQUIRES: the reading code knows a key of this shape.
const KeyFacts& FactsOf(const std::string& shape);

}  // namespace tavrin::tool
