#include "api/LibraryInstance.h"

namespace tavrin {

PrinterConfig* libraryInstance = nullptr;
std::uint32_t lastErrorCode = ErrorNone;

std::unique_ptr<PrinterConfig> CreatePrinterConfig(const std::string& path) {
  auto config = std::make_unique<PrinterConfig>();
  if (!config->Load(path)) return nullptr;
  return config;
}

}  // namespace tavrin
