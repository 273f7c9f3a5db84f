#pragma once

#include <cstdio>
#include <filesystem>
#include <memory>
#include <system_error>

namespace tavrin::tool {

/// A path beside target where nothing lies. Its name is short: one made longer than the target's
/// could be too long for the directory.
std::filesystem::path UnusedPathBeside(const std::filesystem::path& target);

/// A new file beside the one whose place it takes at the end, so that the exchange never crosses
/// file systems. Only its owner can read it; unless it is renamed it goes away with the object.
class TemporaryFile {
 public:
  explicit TemporaryFile(const std::filesystem::path& target);
  ~TemporaryFile();
  TemporaryFile(const TemporaryFile&) = delete;
  TemporaryFile& operator=(const TemporaryFile&) = delete;

  /// The open file; null, with the reason in errno, when it could not be created.
  std::FILE* Stream() const { return stream_.get(); }

  const std::filesystem::path& Path() const { return path_; }

  /// @return false, with the reason in errno, when the last bytes could not be written.
  bool Close();

  /// Takes the target's place, with the given permissions.
  ///
  /// REQUIRES: Close() returned true.
  bool Rename(std::filesystem::perms permissions, std::error_code* error);

 private:
  struct Closer {
    void operator()(std::FILE* stream) const { std::fclose(stream); }
  };

  std::filesystem::path target_;
  std::filesystem::path path_;
  std::unique_ptr<std::FILE, Closer> stream_;
};

}  // namespace tavrin::tool
