#pragma once

#include <string>

#include "definition/Buffer.h"
#include "platform/PlainCopy.h"

namespace tavrin {

/// A block of bytes that comes from a file and goes to one.
class FileLoader : public Buffer {
 public:
  /// Replaces the block by the content of the file at path.
  ///
  /// @return false when the file is missing, empty, unreadable or too large for the memory.
  virtual bool LoadFromFile(const std::string& path);

  /// Writes the block, a deciphered definition, as its plain copy.
  ///
  /// @return false when there is no block (no file is made) or no file to parse.
  virtual bool SaveToFile(platform::PlainCopy* copy) const;
};

}  // namespace tavrin
