#pragma once

#include <string>
#include <string_view>

#include <locale.h>

namespace tavrin::platform {

/// The user's narrow encoding, as the environment names it (LC_ALL, LC_CTYPE, LANG) at the moment
/// of construction; UTF-8 where that names no usable locale. Leaves the process's locale alone.
class LocaleCodec {
 public:
  /// What stands in for a byte that the encoding cannot decode.
  enum class Undecodable {
    Replace,  ///< U+FFFD: the text stays readable.
    Escape    ///< U+DC00 + byte, which AppendNarrow turns back: a path stays the same path.
  };

  LocaleCodec();
  ~LocaleCodec();
  LocaleCodec(const LocaleCodec&) = delete;
  LocaleCodec& operator=(const LocaleCodec&) = delete;

  /// Appends the decoded bytes; NULs are decoded like other characters.
  void AppendWide(std::string_view bytes, Undecodable undecodable, std::wstring* wide) const;

  /// Appends the encoded text, with a '?' for each character that the encoding lacks.
  ///
  /// @return whether every character could be encoded.
  bool AppendNarrow(std::wstring_view wide, std::string* narrow) const;

 private:
  locale_t locale_ = nullptr;  // null: UTF-8
};

}  // namespace tavrin::platform
