#pragma once

#include <string>

namespace tavrin {

/// Where the plain copy of a definition file lies while it is read: in the user's temporary
/// directory, under the name that TemporaryName gives for the host process. Two processes of one
/// program that load definitions of one name share it.
std::string MakeTemporaryPath(const std::string& definitionPath);

/// The host executable's name without its extension, "_", and the definition file's name with the
/// extension "bin": Modeler.exe and printer.dat give Modeler_printer.bin.
std::string TemporaryName(const std::string& modulePath, const std::string& definitionPath);

}  // namespace tavrin
