#pragma once

#include <cstdint>
#include <memory>
#include <string>

#include "TavrinLib.h"
#include "definition/PrinterConfig.h"

namespace tavrin {

// The library's only two variables. Nothing guards them: hosts call from one thread at a time.

/// The loaded printer configuration, owned; null when there is none. A plain pointer, for unloading
/// the library leaves the configuration to the process's end.
extern PrinterConfig* libraryInstance;

/// The code of the last failure that an export recorded.
extern std::uint32_t lastErrorCode;

/// A configuration loaded from the enciphered definition file at path; null when it does not load.
std::unique_ptr<PrinterConfig> CreatePrinterConfig(const std::string& path);

/// Records code as the last error.
///
/// @return false, the result of the export that failed.
inline bool Fail(TavrinErrorCode code) {
  lastErrorCode = code;
  return false;
}

/// Lets answer read the loaded configuration; records that there is none otherwise.
template <typename Answer>
bool Query(Answer answer) {
  if (libraryInstance == nullptr) return Fail(ErrorNotInitialized);
  return answer(static_cast<const PrinterConfig&>(*libraryInstance));
}

}  // namespace tavrin
