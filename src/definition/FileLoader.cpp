#include "definition/FileLoader.h"

#include "platform/Files.h"

namespace tavrin {

bool FileLoader::LoadFromFile(const std::string& path) {
  Release();
  return platform::ReadRegularFile(
      path, [this](std::uint32_t size) { return Allocate(size) ? Data() : nullptr; });
}

bool FileLoader::SaveToFile(platform::PlainCopy* copy) const {
  return !IsEmpty() && copy->Write(Data(), Size());
}

}  // namespace tavrin
