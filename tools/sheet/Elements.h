#pragma once

#include <string>
#include <vector>

#include "facts/DefinitionFacts.h"
#include "sheet/Html.h"

namespace tavrin::tool {

/// Whether the printer gets the value of the key from the definition.
bool IsGiven(const DefinitionFacts& facts, const std::string& key);

/// A word in a frame, such as "limited".
Html Tag(const Html& style, const Html& text);

/// Says that the definition leaves a value to the library.
Html BuiltInTag();
Html TagUnlessGiven(const DefinitionFacts& facts, const std::string& key);

Html Section(const Html& title, const Html& content);

Html FactRow(const Html& name, const Html& value);
/// REQUIRES: the rows are those of FactRow.
Html FactTable(const Html& rows);

/// A table whose columns have titles and whose rows begin with one.
Html Table(const Html& style, const Html& caption, const std::vector<Html>& titles,
           const Html& rows);

}  // namespace tavrin::tool
