#include "definition/TemporaryPath.h"

#include "definition/TextConversion.h"
#include "platform/HostPaths.h"

namespace tavrin {

namespace {

/// The text after the last separator, without the last dot and what follows it.
std::string CutToStem(const std::string& path) {
  const std::string name = path.substr(path.find_last_of("\\/") + 1);
  return name.substr(0, name.rfind('.'));
}

/// The same, looked for in wide text, as in double-byte encodings a second byte may look like a
/// separator; in the bytes of what is no text in the user's encoding, or spells a character in the
/// other of two ways.
std::string StemOf(const std::string& path) {
  const std::wstring wide = WideCopy(path);
  if (NarrowCopy(wide) != path) return CutToStem(path);
  const std::wstring name = wide.substr(wide.find_last_of(L"\\/") + 1);
  return NarrowCopy(name.substr(0, name.rfind(L'.')));
}

}  // namespace

std::string MakeTemporaryPath(const std::string& definitionPath) {
  return platform::GetTempDirectory() + TemporaryName(platform::GetModulePath(), definitionPath);
}

std::string TemporaryName(const std::string& modulePath, const std::string& definitionPath) {
  return StemOf(modulePath) + "_" + StemOf(definitionPath) + ".bin";
}

}  // namespace tavrin
