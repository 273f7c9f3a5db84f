#pragma once

#include "files/FileTransfer.h"
#include "platform/PlainCopy.h"

namespace tavrin::tool {

/// A plain definition as a file, as the reading code reads files alone. It lies in the directory
/// that the library uses, under a name that no load uses.
class CopyToRead : public platform::PlainCopy {
 public:
  explicit CopyToRead(const Bytes& plain);
};

}  // namespace tavrin::tool
