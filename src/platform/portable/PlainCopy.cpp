#include "platform/PlainCopy.h"

#include <cstdio>

#include "platform/portable/OwnerOnlyFile.h"
#include "platform/portable/PlainCopyState.h"

namespace tavrin::platform {

PlainCopy::PlainCopy(const std::string& path) : path_(path), state_(std::make_unique<State>()) {
}

PlainCopy::~PlainCopy() {
  std::remove(path_.c_str());
}

bool PlainCopy::Write(const unsigned char* block, std::uint32_t n) {
  state_->file = CreateOwnerOnly(path_);
  state_->size = n;
  wroteAll_ =
      state_->file.IsOpen() && WriteAt(state_->file, {reinterpret_cast<const char*>(block), n}, 0);
  return state_->file.IsOpen();
}

}  // namespace tavrin::platform
