#pragma once

#include <cstddef>
#include <string>

#include "check/Finding.h"
#include "check/LineIndex.h"

namespace tavrin::tool {

/// Stands for the value as a whole.
inline constexpr std::size_t kWholeValue = static_cast<std::size_t>(-1);

/// Adds to a finding that its remedy is to write the text for the value of the line, or for one
/// field of it, and how sure that is.
///
/// REQUIRES: the line has an equals sign, and its value so many fields.
void AddValueEdit(const KeyLine& line, std::size_t field, const std::string& text,
                  Certainty certainty, Finding* finding);

/// The same for the name of the line.
void AddNameEdit(const KeyLine& line, const std::string& name, Certainty certainty,
                 Finding* finding);

}  // namespace tavrin::tool
