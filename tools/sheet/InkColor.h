#pragma once

#include <string>

#include "sheet/Html.h"

namespace tavrin::tool {

/// A swatch for the ink: in the colour that its name says, clear ink and support as patterns of
/// their own, and a question mark for a name that says no colour.
///
/// @param name of the colour; the last words in it that are known decide.
/// @param isKnown false for a slot whose ink the definition does not describe.
Html Swatch(const std::string& name, bool isKnown);

}  // namespace tavrin::tool
