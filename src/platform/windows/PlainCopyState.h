#pragma once

#include <string>

#include "platform/PlainCopy.h"
#include "platform/windows/NamedMutex.h"

namespace tavrin::platform {

class PlainCopy::State {
 public:
  explicit State(const std::string& copyPath);

  std::wstring path;
  NamedMutex mutex;  ///< held while the copy lies at the path
};

}  // namespace tavrin::platform
