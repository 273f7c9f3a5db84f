#pragma once

namespace tavrin::tool {

/// Prints a plain definition with every key explained, which loads to the built-in defaults.
void PrintTemplate();

}  // namespace tavrin::tool
