#include "platform/TextEncoding.h"

#include <clocale>
#include <cstdlib>
#include <vector>

namespace tavrin::platform {

namespace {

/// The runtime's conversions follow the process's locale, which starts as "C" in every process.
void SelectUserCodePage() {
  std::setlocale(LC_CTYPE, "");
}

}  // namespace

bool ToNarrow(const std::wstring& wide, std::string* narrow) {
  try {
    SelectUserCodePage();
    std::vector<char> buffer(static_cast<std::size_t>(MB_CUR_MAX) * wide.size() + 1);
    std::size_t converted = 0;
    wcstombs_s(&converted, buffer.data(), buffer.size(), wide.c_str(), buffer.size());
    *narrow = buffer.data();
    return true;
  } catch (...) {
    return false;
  }
}

bool ToWide(const std::string& narrow, std::wstring* wide) {
  try {
    SelectUserCodePage();
    std::vector<wchar_t> buffer(narrow.size() + 1);
    std::size_t converted = 0;
    mbstowcs_s(&converted, buffer.data(), buffer.size(), narrow.c_str(), buffer.size());
    *wide = buffer.data();
    return true;
  } catch (...) {
    return false;
  }
}

}  // namespace tavrin::platform
