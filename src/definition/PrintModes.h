#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "definition/IniFile.h"
#include "definition/PrinterConfig.h"

namespace tavrin {

/// Reads the mode numbers of key "Mode", in file order; fields that are no number are left out.
///
/// @return whether any number is left.
bool ReadModeList(IniFile& ini, std::vector<std::int32_t>* numbers);

/// The same for key "LimitationMode".
bool ReadLimitationModeList(IniFile& ini, std::vector<std::int32_t>* numbers);

/// Reads the first two fields of the list at key as integers. What the two mean is between the
/// definition file and the printer; the library only carries them.
///
/// @return false when either is missing or no number.
bool ReadModePair(IniFile& ini, const std::string& key, std::int32_t* first, std::int32_t* second);

/// Rebuilds config's print modes: one for each listed number that has slice size, colour thickness
/// and pair. Without a mode list the modes stay as they are.
///
/// @return whether any mode was read.
bool ReadModes(IniFile& ini, PrinterConfig* config);

}  // namespace tavrin
