#include "definition/TemporaryPath.h"

#include "platform/HostPaths.h"

namespace tavrin {

namespace {

/// The text after the last separator, without the last dot and what follows it.
std::string StemOf(const std::string& path) {
  const std::string name = path.substr(path.find_last_of("\\/") + 1);
  return name.substr(0, name.rfind('.'));
}

}  // namespace

std::string MakeTemporaryPath(const std::string& definitionPath) {
  return platform::GetTempDirectory() + TemporaryName(platform::GetModulePath(), definitionPath);
}

std::string TemporaryName(const std::string& modulePath, const std::string& definitionPath) {
  return StemOf(modulePath) + "_" + StemOf(definitionPath) + ".bin";
}

}  // namespace tavrin
