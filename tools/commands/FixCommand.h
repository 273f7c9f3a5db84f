#pragma once

#include <ostream>
#include <string>

#include "check/DefinitionReading.h"
#include "files/FileTransfer.h"

namespace tavrin::tool {

/// Follows the certain remedies of a definition in its file and prints what that changes.
///
/// @param definition the file's bytes, plain or enciphered.
/// @return what the library makes of it afterwards.
DefinitionReading FixInPlace(const std::string& file, const Bytes& definition, std::ostream& out);

/// Prints what FixInPlace would.
void PreviewFix(const std::string& file, const Reading& reading, std::ostream& out);

}  // namespace tavrin::tool
