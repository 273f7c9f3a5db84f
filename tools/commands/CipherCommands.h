#pragma once

#include <optional>
#include <string>

namespace tavrin::tool {

/// Enciphers the plain INI file into a printer definition file. A new definition takes the INI
/// file's permissions, one that is replaced keeps its own.
void Encipher(const std::string& ini, const std::string& definition);

/// Deciphers the printer definition file into a plain INI file that only its owner can read, or to
/// standard output when there is no ini.
void Decipher(const std::string& definition, const std::optional<std::string>& ini);

}  // namespace tavrin::tool
