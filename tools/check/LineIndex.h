#pragma once

#include <cstddef>
#include <map>
#include <string>
#include <string_view>
#include <vector>

#include "files/FileTransfer.h"

namespace tavrin::tool {

/// The name with its ASCII letters in lower case: keys and sections go by it.
std::string Folded(std::string_view name);

/// The text without the blanks at its ends, as the reading code counts them.
std::string_view Trim(std::string_view text);

/// A line that spells a key.
struct KeyLine {
  enum class Place { Outside, Section, LaterSection };

  std::size_t number = 0;  ///< from 1
  Place place = Place::Outside;
  bool hasEquals = false;
  std::string name = {};
  std::string value = {};  ///< without the quotes round it
  bool hasNul = false;     ///< name and value end where one is
  std::string text = {};   ///< the line as it stands, without its end

  /// Whether the name is surely the same for the library: ASCII throughout, without a '?'.
  bool HasPlainName() const;
};

/// A line that begins a section.
struct SectionHeader {
  std::size_t number = 0;                          ///< from 1
  KeyLine::Place place = KeyLine::Place::Outside;  ///< of the keys below it
  bool isHidden = false;                           ///< the reading code does not see it
  bool hasEnd = false;                             ///< there is a ]
  std::string name = {};
  std::size_t begin = 0;  ///< where in the line [ is
  std::size_t end = 0;    ///< what follows ]
};

/// A line that says nothing to the library.
struct CommentLine {
  std::size_t number;  ///< from 1
  std::string text;    ///< what follows its semicolon
};

/// What the index and the library have alike of a text: its ASCII but for '?', which either puts
/// for other characters.
template <typename Text>
std::string PlainPart(const Text& text) {
  std::string plain;
  for (const auto c : text) {
    if (c > 0 && c < 0x80 && c != '?') plain += static_cast<char>(c);
  }
  return plain;
}

/// How the bytes of a plain definition spell its text.
struct TextFormat {
  std::size_t markLength = 0;
  std::size_t unitLength = 1;  ///< 2: UTF-16, else the user's encoding
  std::size_t lowByte = 0;     ///< where in a unit the byte is that ASCII has

  /// Of a definition, what its author means it to be.
  static TextFormat Of(const Bytes& plain);
};

/// The text without its mark: the file's bytes, or of UTF-16 the ASCII, all else being '?'.
std::string TextOf(const Bytes& plain, const TextFormat& format);

/// Takes the first line of the rest, without its end.
std::string_view TakeLine(std::string_view* rest);

/// Says which line of a plain definition is which key. It knows the outline of the format, but not
/// what a key means; what it says is held against what the library read.
///
/// Texts are the file's bytes. Of UTF-16 only ASCII is kept, all else being '?', or a control
/// character where the bytes are out of step.
class LineIndex {
 public:
  /// @param isKnown false when the reading code takes the format for the user's encoding.
  LineIndex(const Bytes& plain, const TextFormat& format, bool isKnown);

  const std::vector<KeyLine>& Keys() const { return keys_; }
  const std::vector<CommentLine>& Comments() const { return comments_; }
  /// The line of the key that counts: the first in the first section of the name; null when there
  /// is none.
  const KeyLine* Find(std::string_view key) const;
  /// Where a character of a line stands in the file; of line 0, which is the mark, the first byte.
  ///
  /// REQUIRES: the file has the line, and it is that long.
  std::size_t OffsetOf(std::size_t line, std::size_t column) const {
    return line == 0 ? 0 : format_.markLength + (starts_[line - 1] + column) * format_.unitLength;
  }
  const TextFormat& Format() const { return format_; }
  /// Where the section begins; 0 when it is missing.
  std::size_t HeaderLine() const { return headerLine_; }
  /// Where a section begins that the unknown format hides from the reading code; 0 for nowhere.
  std::size_t HiddenHeaderLine() const { return hiddenHeaderLine_; }
  const std::vector<SectionHeader>& Headers() const { return headers_; }
  /// Every line as it stands, without its end.
  const std::vector<std::string>& Lines() const { return lines_; }
  /// Whether the last line is ended, or nothing stands in it.
  bool IsEnded() const { return isEnded_; }
  bool IsUtf16() const { return format_.unitLength == 2; }

 private:
  void AddLine(std::size_t number, std::string_view text);
  void AddHeader(std::size_t number, std::string_view text);
  void AddKey(std::size_t number, std::string_view text);

  TextFormat format_;
  bool isKnown_;
  std::vector<std::size_t> starts_;  ///< of the lines, in characters
  std::vector<KeyLine> keys_;
  std::vector<CommentLine> comments_;
  std::map<std::string, std::size_t> counting_;  ///< by folded name, into keys_
  std::size_t headerLine_ = 0;
  std::size_t hiddenHeaderLine_ = 0;
  std::vector<SectionHeader> headers_;
  std::vector<std::string> lines_;
  bool isEnded_ = true;
  KeyLine::Place place_ = KeyLine::Place::Outside;
};

}  // namespace tavrin::tool
