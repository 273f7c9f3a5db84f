#pragma once

#include <string>

#include "check/DefinitionReading.h"
#include "facts/HiddenFacts.h"
#include "facts/PrinterFacts.h"
#include "files/FileTransfer.h"

namespace tavrin::tool {

/// All that there is to know of one definition that loads.
struct DefinitionFacts {
  std::string file;              ///< as the user named it, for messages
  DefinitionReading definition;  ///< its text and how that was read, as `tavrin check` needs it
  PrinterFacts printer;          ///< what hosts get
  HiddenFacts hidden;            ///< what the library reads and no export hands out
};

/// Loads the definition and asks the library about it. What is not an enciphered file is loaded
/// from an enciphered copy in the temporary directory, which is removed again.
///
/// @param file a plain or an enciphered one; "-" is standard input. One that cannot be read or does
///        not load is refused.
DefinitionFacts LoadFacts(const std::string& file);

/// The same of a definition that was read from file.
DefinitionFacts LoadFacts(const std::string& file, const Bytes& bytes);

}  // namespace tavrin::tool
