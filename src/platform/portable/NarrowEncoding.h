#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>

#include "platform/portable/LocaleCodec.h"

namespace tavrin::platform {

/// The user's narrow encoding.
class NarrowEncoding {
 public:
  using Unit = char;

  static constexpr std::size_t kMarkLength = 0;

  static std::string FromBytes(std::string bytes) { return bytes; }
  static std::string ToBytes(std::string text) { return text; }

  void AppendWide(std::string_view text, std::wstring* wide);
  void AppendUnits(std::wstring_view wide, std::string* text);

 private:
  const LocaleCodec& Codec();

  std::optional<LocaleCodec> codec_;  // Costly to make, and ASCII does without.
};

/// Decodes the bytes of a profile, without the mark.
std::wstring DecodeProfile(const std::string& bytes);

}  // namespace tavrin::platform
