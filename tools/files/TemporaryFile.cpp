#include "files/TemporaryFile.h"

#include <random>
#include <string>

#include "definition/FileBytes.h"
#include "files/FilePath.h"

namespace tavrin::tool {

std::filesystem::path UnusedPathBeside(const std::filesystem::path& target) {
  std::random_device random;
  std::filesystem::path path;
  std::error_code error;
  do {
    path = target.parent_path() / ("tavrin-" + std::to_string(random()) + ".tmp");
  } while (std::filesystem::exists(std::filesystem::symlink_status(path, error)));
  return path;
}

TemporaryFile::TemporaryFile(const std::filesystem::path& target)
    : target_(target),
      path_(UnusedPathBeside(target)),
      stream_(CreateOwnerOnlyFile(ToArgument(path_))) {
}

TemporaryFile::~TemporaryFile() {
  if (path_.empty()) return;
  stream_.reset();
  std::error_code ignored;
  std::filesystem::remove(path_, ignored);
}

bool TemporaryFile::Close() {
  return std::fclose(stream_.release()) == 0;
}

bool TemporaryFile::Rename(std::filesystem::perms permissions, std::error_code* error) {
  std::filesystem::permissions(path_, permissions, *error);
  if (!*error) std::filesystem::rename(path_, target_, *error);
  if (*error) return false;
  path_.clear();
  return true;
}

}  // namespace tavrin::tool
