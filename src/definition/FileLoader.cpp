#include "definition/FileLoader.h"

#include "definition/FileBytes.h"

namespace tavrin {

bool FileLoader::LoadFromFile(const std::string& path) {
  return Allocate(FileSizeOf(path)) && ReadFileBytes(path, Data(), Size());
}

bool FileLoader::SaveToFile(platform::PlainCopy* copy) const {
  return !IsEmpty() && copy->Write(Data(), Size());
}

}  // namespace tavrin
