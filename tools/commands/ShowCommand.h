#pragma once

#include <string>

namespace tavrin::tool {

enum class ShowFormat { Text, Json };

/// Prints what the library answers about the printer definition file, as any host would ask it.
void Show(const std::string& definition, ShowFormat format);

}  // namespace tavrin::tool
