#pragma once

#include "definition/IniFile.h"
#include "definition/PrinterConfig.h"

namespace tavrin {

/// Reads identity, build volume, margins, support, switches and cutting margin into config.
///
/// @return false when the model name or the version is neither in the file nor in config.
bool ReadPrinterSection(IniFile& ini, PrinterConfig* config);

}  // namespace tavrin
