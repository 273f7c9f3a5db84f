#include "definition/TemporaryPath.h"

#include <new>

#include "definition/TextConversion.h"
#include "definition/WideText.h"
#include "platform/HostPaths.h"

namespace tavrin {

namespace {

/// The text after the last separator, without the last dot and what follows it. Looked for in wide
/// text, as in double-byte encodings a second byte may look like a separator.
std::string StemOf(const std::string& path) {
  const std::wstring wide = WideText(path).c_str();
  const std::wstring name = wide.substr(wide.find_last_of(L"\\/") + 1);
  std::string stem;
  if (!ToNarrow(name.substr(0, name.rfind(L'.')), &stem)) throw std::bad_alloc();
  return stem;
}

}  // namespace

std::string MakeTemporaryPath(const std::string& definitionPath) {
  return platform::GetTempDirectory() + TemporaryName(platform::GetModulePath(), definitionPath);
}

std::string TemporaryName(const std::string& modulePath, const std::string& definitionPath) {
  return StemOf(modulePath) + "_" + StemOf(definitionPath) + ".bin";
}

}  // namespace tavrin
