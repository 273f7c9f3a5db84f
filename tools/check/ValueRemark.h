#pragma once

#include <cstddef>
#include <optional>
#include <string_view>

#include "check/Rules.h"

namespace tavrin::tool {

/// What stands behind a value as if it were not part of it: a comment, or the comma or semicolon
/// that ends lines of other formats.
struct ValueRemark {
  std::size_t end;        ///< of the value proper, in the text
  std::size_t mark;       ///< where the comment's mark is, or the comma or semicolon
  std::string_view text;  ///< of the comment, without its mark; empty where it says nothing
  bool isSure;            ///< it cannot be meant as part of the value
};

/// Looks for a remark in a value without the blanks round it.
///
/// @param isName whether it is free text, in which commas and semicolons may have a sense.
std::optional<ValueRemark> RemarkIn(std::string_view value, bool isName);

/// Adds the finding on a remark.
///
/// @param key the name of the value's key.
/// @param column where in the line the value begins, from 0.
void AddRemark(const Check& check, const KeyLine& line, const std::string& key, std::size_t column,
               const ValueRemark& remark);

}  // namespace tavrin::tool
