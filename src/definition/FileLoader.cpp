#include "definition/FileLoader.h"

#include "definition/FileBytes.h"

namespace tavrin {

bool FileLoader::LoadFromFile(const std::string& path) {
  return Allocate(FileSizeOf(path)) && ReadFileBytes(path, Data(), Size());
}

bool FileLoader::SaveToFile(const std::string& path) const {
  return !IsEmpty() && WriteOwnerOnlyFileBytes(path, Data(), Size());
}

}  // namespace tavrin
