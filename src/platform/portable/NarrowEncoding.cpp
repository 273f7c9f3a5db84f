#include "platform/portable/NarrowEncoding.h"

#include "platform/portable/Ascii.h"
#include "platform/portable/ProfileText.h"

namespace tavrin::platform {

void NarrowEncoding::AppendWide(std::string_view text, std::wstring* wide) {
  if (IsAscii(text)) {
    AppendAsIs(text, wide);
  } else {
    Codec().AppendWide(text, LocaleCodec::Undecodable::Replace, wide);
  }
}

void NarrowEncoding::AppendUnits(std::wstring_view wide, std::string* text) {
  if (IsAscii(wide)) {
    AppendAsIs(wide, text);
  } else {
    Codec().AppendNarrow(wide, text);
  }
}

const LocaleCodec& NarrowEncoding::Codec() {
  if (!codec_) codec_.emplace();
  return *codec_;
}

std::wstring DecodeProfile(const std::string& bytes) {
  std::wstring wide;
  if (Utf16Encoding::HasMark(bytes)) {
    const std::u16string text = Utf16Encoding::FromBytes(bytes);
    Utf16Encoding::AppendWide(std::u16string_view(text).substr(Utf16Encoding::kMarkLength), &wide);
  } else {
    NarrowEncoding().AppendWide(bytes, &wide);
  }
  return wide;
}

}  // namespace tavrin::platform
