#pragma once

#include "definition/IniFile.h"
#include "ink/InkModel.h"

namespace tavrin {

/// Reads the colours into inks, or gives it the built-in ones when the definition has no count of
/// at least 1. An entry that lacks its code or its name is left out. Always true.
bool ReadColors(IniFile& ini, InkModel* inks);

/// The same for the ink types.
bool ReadInkTypes(IniFile& ini, InkModel* inks);

/// Reads the ink slots into inks, or gives it the built-in ones when the count is below 1 or any
/// slot up to it is not complete.
///
/// @return whether the slots are the definition's.
bool ReadInkSlots(IniFile& ini, InkModel* inks);

}  // namespace tavrin
