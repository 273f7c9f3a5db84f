#include "definition/WideText.h"

#include <algorithm>
#include <iterator>
#include <new>

#include "definition/TextConversion.h"

namespace tavrin {

namespace {

bool IsAscii(char c) {
  return static_cast<unsigned char>(c) < 0x80;
}

}  // namespace

WideText::WideText(const std::string& narrow) : text_(short_) {
  // Every encoding has ASCII in its place, so the names of keys take neither memory nor a codec.
  if (narrow.size() < std::size(short_) && std::all_of(narrow.begin(), narrow.end(), IsAscii)) {
    *std::copy(narrow.begin(), narrow.end(), short_) = L'\0';
  } else {
    if (!ToWide(narrow, &long_)) throw std::bad_alloc();
    text_ = long_.c_str();
  }
}

}  // namespace tavrin
