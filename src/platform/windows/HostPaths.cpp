#include "platform/HostPaths.h"

#include <windows.h>

#include "platform/TextEncoding.h"

namespace tavrin::platform {

namespace {

constexpr DWORD kModulePathCharacters = 520;
constexpr DWORD kTempDirectoryCharacters = 260;

std::string Narrow(const wchar_t* text) {
  std::string narrow;
  ToNarrow(text, &narrow);
  return narrow;
}

}  // namespace

std::string GetModulePath() {
  // One more than the size told, so that a cut path is NUL-ended on every Windows.
  wchar_t path[kModulePathCharacters + 1] = {};
  GetModuleFileNameW(nullptr, path, kModulePathCharacters);
  return Narrow(path);
}

std::string GetTempDirectory() {
  wchar_t directory[kTempDirectoryCharacters] = {};
  GetTempPathW(kTempDirectoryCharacters, directory);
  return Narrow(directory);
}

}  // namespace tavrin::platform
