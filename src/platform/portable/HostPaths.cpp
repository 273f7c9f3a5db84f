#include "platform/HostPaths.h"

#include <cstdlib>
#include <filesystem>
#include <system_error>

namespace tavrin::platform {

std::string GetModulePath() {
  std::error_code error;
  return std::filesystem::read_symlink("/proc/self/exe", error).string();
}

std::string GetTempDirectory() {
  const char* chosen = std::getenv("TMPDIR");
  std::string directory = chosen != nullptr && *chosen != '\0' ? chosen : "/tmp";
  if (directory.back() != '/') directory += '/';
  return directory;
}

}  // namespace tavrin::platform
