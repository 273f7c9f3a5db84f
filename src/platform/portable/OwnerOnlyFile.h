#pragma once

#include <string>

#include "platform/portable/Descriptor.h"

namespace tavrin::platform {

/// Creates the file at path, for reading and writing by its owner alone. What lies there, an own
/// file of wider permissions or a link, is taken out of the way, not written to.
///
/// @return none, with the reason in errno, when it cannot be created: what lies there cannot be
///         removed or is a directory, or others took the place again and again.
Descriptor CreateOwnerOnly(const std::string& path);

}  // namespace tavrin::platform
