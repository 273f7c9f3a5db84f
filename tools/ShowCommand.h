#pragma once

#include <string>

namespace tavrin::tool {

/// Prints what the library answers about the printer definition file, as any host would ask it.
void Show(const std::string& definition);

}  // namespace tavrin::tool
