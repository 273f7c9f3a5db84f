#include "platform/HostPaths.h"

#include <cstdlib>

#include <limits.h>
#include <unistd.h>

namespace tavrin::platform {

std::string GetModulePath() {
  char path[PATH_MAX];
  const ssize_t length = readlink("/proc/self/exe", path, sizeof path);
  return length < 0 ? std::string() : std::string(path, static_cast<std::size_t>(length));
}

std::string GetTempDirectory() {
  const char* chosen = std::getenv("TMPDIR");
  std::string directory = chosen != nullptr && *chosen != '\0' ? chosen : "/tmp";
  if (directory.back() != '/') directory += '/';
  return directory;
}

}  // namespace tavrin::platform
