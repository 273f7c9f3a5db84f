#pragma once

#include <cstdint>
#include <memory>
#include <string>

namespace tavrin::platform {

/// The plain copy of a definition, at its path in the temporary directory while it is parsed.
///
/// Processes of one program that load definitions of the same name share that path, and on some
/// systems strangers share the directory. A ProfileReader made of this object reads what the object
/// wrote all the same: elsewhere than on Windows because it reads the created file itself, whatever
/// the path names by then; on Windows, where the file could be created, because only one process of
/// a session has a copy at a path.
class PlainCopy {
 public:
  /// On Windows waits for other processes that have a copy at path, for ten seconds at the most.
  explicit PlainCopy(const std::string& path);
  /// Removes what lies at the path, a file or an empty directory; nothing where the wait was in
  /// vain.
  ~PlainCopy();
  PlainCopy(const PlainCopy&) = delete;
  PlainCopy& operator=(const PlainCopy&) = delete;

  /// Creates the file in place of what is there and writes the n bytes of block to it. Where
  /// the platform has file modes, only the owner can read it, and a link at the path is replaced,
  /// never followed.
  ///
  /// @return whether there is a file to parse: the created one; on Windows also one that lies at
  ///         the path and could not be replaced.
  bool Write(const unsigned char* block, std::uint32_t n);

  /// Whether the last Write put all of its block into a file that it created. A load goes on
  /// without: it reads as far as the copy goes.
  bool WroteAll() const { return wroteAll_; }

  const std::string& Path() const { return path_; }

 private:
  friend class ProfileReader;
  class State;

  std::string path_;
  std::unique_ptr<State> state_;
  bool wroteAll_ = false;
};

}  // namespace tavrin::platform
