#pragma once

#include <string>

#include "keys/KeyFacts.h"
#include "keys/KnownKeys.h"

namespace tavrin::tool {

/// What a table of keys says of one, as template, documents and the command keys have it.
struct KeyText {
  explicit KeyText(const KeyFacts& facts);

  std::string values;       ///< which are in range
  std::string usual;        ///< which a printer can use; empty where that is no question
  std::string defaultText;  ///< the value that a printer has by itself; empty where it has none
  std::string without;      ///< what happens without the key
};

/// REQUIRES: the shape is that of a key that the reading code knows.
KnownKey KnownKeyOfShape(const std::string& shape);

const char* TitleOf(KeyFacts::Group group);

}  // namespace tavrin::tool
