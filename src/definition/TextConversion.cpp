#include "definition/TextConversion.h"

#include "platform/TextEncoding.h"

namespace tavrin {

bool ToNarrow(const std::wstring& wide, std::string* narrow) {
  return platform::ToNarrow(wide, narrow);
}

bool ToWide(const std::string& narrow, std::wstring* wide) {
  return platform::ToWide(narrow, wide);
}

std::string NarrowCopy(const std::wstring& wide) {
  std::string narrow;
  ToNarrow(wide, &narrow);
  return narrow;
}

std::wstring WideCopy(const std::string& narrow) {
  std::wstring wide;
  ToWide(narrow, &wide);
  return wide;
}

}  // namespace tavrin
