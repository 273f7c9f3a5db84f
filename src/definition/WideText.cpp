#include "definition/WideText.h"

#include <iterator>
#include <new>

#include "definition/TextConversion.h"

namespace tavrin {

WideText::WideText(const std::string& narrow) : text_(short_) {
  // Every encoding has ASCII in its place, so the names of keys take neither memory nor a codec.
  // Looking and copying in two passes would make a load 3 % longer.
  if (narrow.size() < std::size(short_)) {
    unsigned bits = 0;
    wchar_t* end = short_;
    for (const char c : narrow) {
      const auto byte = static_cast<unsigned char>(c);
      bits |= byte;
      *end++ = byte;
    }
    *end = L'\0';
    if (bits < 0x80) return;
  }
  if (!ToWide(narrow, &long_)) throw std::bad_alloc();
  text_ = long_.c_str();
}

}  // namespace tavrin
