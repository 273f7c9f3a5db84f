#pragma once

#include <string_view>

namespace tavrin::tool {

/// Whether the bytes are UTF-8, as those of ASCII are.
bool IsUtf8(std::string_view bytes);

}  // namespace tavrin::tool
