#pragma once

#include "FileTransfer.h"

namespace tavrin::tool {

/// The plain text of a definition that is plain already or enciphered: of the two that it can be,
/// the one with fewer bytes that no text has.
Bytes PlainTextOf(const Bytes& definition);

}  // namespace tavrin::tool
