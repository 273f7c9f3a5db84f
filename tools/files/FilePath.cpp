#include "files/FilePath.h"

#include <new>

#include "definition/TextConversion.h"

namespace tavrin::tool {

namespace {

// The platform's own path characters choose the overload.

[[maybe_unused]] bool Convert(const std::string& from, std::string* to) {
  *to = from;
  return true;
}

[[maybe_unused]] bool Convert(const std::string& from, std::wstring* to) {
  return ToWide(from, to);
}

[[maybe_unused]] bool Convert(const std::wstring& from, std::string* to) {
  return ToNarrow(from, to);
}

}  // namespace

std::filesystem::path ToPath(const std::string& argument) {
  std::filesystem::path::string_type native;
  if (!Convert(argument, &native)) throw std::bad_alloc();
  return native;
}

std::string ToArgument(const std::filesystem::path& path) {
  std::string argument;
  if (!Convert(path.native(), &argument)) throw std::bad_alloc();
  return argument;
}

}  // namespace tavrin::tool
