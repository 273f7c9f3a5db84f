#include "files/FileOwner.h"

#include <sys/stat.h>
#include <unistd.h>

namespace tavrin::tool {

bool TakeOwner(const std::filesystem::path& replaced, const std::filesystem::path& file) {
  constexpr auto kSameOwner = static_cast<uid_t>(-1);
  struct stat status = {};
  return stat(replaced.c_str(), &status) == 0 &&
         (chown(file.c_str(), status.st_uid, status.st_gid) == 0 ||
          chown(file.c_str(), kSameOwner, status.st_gid) == 0);
}

}  // namespace tavrin::tool
