#pragma once

#include <string>

#include "definition/Buffer.h"

namespace tavrin {

/// A block of bytes that comes from a file and goes to one.
class FileLoader : public Buffer {
 public:
  /// Replaces the block by the content of the file at path.
  ///
  /// @return false when the file is missing, empty, unreadable or too large for the memory.
  virtual bool LoadFromFile(const std::string& path);

  /// Writes the block to a file at path that only its owner can read: what is saved from here is a
  /// deciphered definition.
  ///
  /// @return false when there is no block (no file is made) or the file cannot be created.
  virtual bool SaveToFile(const std::string& path) const;
};

}  // namespace tavrin
