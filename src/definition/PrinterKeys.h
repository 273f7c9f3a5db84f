#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "definition/IniFile.h"

namespace tavrin {

/// The section that a definition has all of its keys in.
inline constexpr char kPrinterSection[] = "printer";

/// Reads a length that the definition gives in mm into a field in µm.
///
/// @return false, field untouched, when the key is missing or no number.
bool ReadMicrometres(IniFile& ini, const std::string& key, std::int32_t* field);

/// Reads a text and cuts it at its commas.
///
/// @return false when the key is missing or its text empty.
bool ReadList(IniFile& ini, const std::string& key, std::vector<std::string>* fields);

/// Converts the number at the start of a text or of a field of a list. White space in front may be
/// beyond ASCII, which only the wide form tells.
///
/// @return false, value untouched, when there is no number or it is out of range.
bool ParseField(const std::string& field, std::int32_t* value);
bool ParseField(const std::string& field, double* value);

}  // namespace tavrin
