#pragma once

#include <cstdint>
#include <string>
#include <variant>
#include <vector>

#include "check/Reading.h"

namespace tavrin::tool {

/// One value that the library has of a definition, its defaults included, so that definitions can
/// be held against each other.
struct Fact {
  enum class Group { Identity, BuildVolume, Modes, Support, Machine, Slots, Categories, Tables };
  enum class Unit { None, Micrometres, Millimetres, Degrees, YesNo };
  enum class Role {
    Plain,
    Detail,  ///< follows from others as a rule: people are told only where nothing else changed
    Order,   ///< a list whose elements' coming and going is told by others
    Cause    ///< why others are as they are; a change by itself is none
  };
  using Value = std::variant<std::monostate, bool, std::int64_t, double, std::string,
                             std::vector<std::int64_t>>;

  Group group;
  std::string item;   ///< what has the value, such as "Mode 2"; empty for the printer
  std::string field;  ///< which value of it; empty for what it is
  Value value;
  Unit unit = Unit::None;
  bool isHandedOut = true;  ///< whether hosts get it through an export
  Role role = Role::Plain;
};

/// The names that outputs have for them.
const char* TitleOf(Fact::Group group);
const char* NameOf(Fact::Group group);
const char* NameOf(Fact::Unit unit);

/// The value for people. Lengths of less than a mm are in um.
std::string TextOf(const Fact::Value& value, Fact::Unit unit);

/// All that the library has of the definition, in the order in which it is told.
///
/// REQUIRES: the definition loads.
std::vector<Fact> ListFacts(const Reading& reading);

}  // namespace tavrin::tool
