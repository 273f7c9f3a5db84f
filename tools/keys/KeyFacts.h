#pragma once

#include <cstddef>
#include <cstdint>
#include <limits>
#include <string>
#include <vector>

#include "definition/PrinterConfig.h"

namespace tavrin::tool {

/// The numbers between two bounds; by default all.
struct Range {
  static constexpr double kUnbounded = std::numeric_limits<double>::infinity();

  double least = -kUnbounded;
  double most = kUnbounded;
  bool hasLeast = true;  ///< whether the bound itself is in the range
  bool hasMost = true;

  bool Contains(double number) const;
  bool IsUnbounded() const { return least == -kUnbounded && most == kUnbounded; }
  /// In words, such as "0 or more"; empty where there is no bound.
  std::string Text() const;
};

/// What becomes of most values that are out of range or that no printer can use.
inline constexpr char kAsItIs[] = "the library takes it as it is";

/// What an author should know of a key.
struct KeyFacts {
  enum class Group { Identity, Dimensions, Support, Switches, CuttingMargin, Modes, Inks };
  enum class Form { Text, Switch, Integer, Integers, Number, Numbers, Length };
  /// A printer's value of the key of that number, as a definition has it.
  using Value = std::string (*)(const PrinterConfig& config, std::int32_t number);

  const char* shape;
  Group group;
  Form form;
  const char* unit;     ///< or what an integer or a switch is
  Range range;          ///< of each number, of a text's length in bytes
  Range usual;          ///< what a printer can use; 0, where it is in range, is always usual
  const char* beyond;   ///< what the library does with a value out of range; null without a range
  const char* meaning;  ///< sentences
  const char* example;
  /// Null where a printer that the key says nothing of has no value of its own.
  Value value = nullptr;
  /// What becomes of the printer when the key gives no value, '#' being the key's number; where it
  /// is null, the printer keeps the value that it has.
  const char* without = nullptr;
  /// The key that decides whether this one is asked for, if any does.
  const char* governor = nullptr;
  /// Why a definition that is made of defaults has no such key; null where it can have it.
  const char* leftOut = nullptr;
  std::size_t fields = 0;  ///< of a list; 0: any number

  /// What the printer gets when the key, of that number, gives no value.
  std::string Outcome(const PrinterConfig& config, std::int32_t number) const;
};

/// Of every key that the reading code knows, in the order in which authors meet them.
const std::vector<KeyFacts>& ListKeyFacts();

/// REQUIRES: the reading code knows a key of this shape.
const KeyFacts& FactsOf(const std::string& shape);

/// A printer whose definition has nothing but a version.
const PrinterConfig& BuiltInPrinter();

/// The number in decimal, as short as it goes.
std::string NumberText(double number);

}  // namespace tavrin::tool
