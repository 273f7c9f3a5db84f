#pragma once

#include <cstddef>
#include <map>
#include <string>
#include <string_view>
#include <vector>

#include "FileTransfer.h"

namespace tavrin::tool {

/// The name with its ASCII letters in lower case: keys and sections go by it.
std::string Folded(std::string_view name);

/// A line that spells a key.
struct KeyLine {
  enum class Place { Outside, Section, LaterSection };

  std::size_t number = 0;  ///< from 1
  Place place = Place::Outside;
  bool hasEquals = false;
  std::string name = {};
  std::string value = {};  ///< without the quotes round it

  /// Whether the name is surely the same for the library: ASCII throughout, without a '?'.
  bool HasPlainName() const;
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

/// Says which line of a plain definition is which key. It knows the outline of the format, but not
/// what a key means; what it says is held against what the library read.
///
/// Texts are the file's bytes. Of UTF-16 only ASCII is kept, all else being '?'.
class LineIndex {
 public:
  explicit LineIndex(const Bytes& plain);

  const std::vector<KeyLine>& Keys() const { return keys_; }
  /// The line of the key that counts: the first in the first section of the name; null when there
  /// is none.
  const KeyLine* Find(std::string_view key) const;
  /// Where the section begins; 0 when it is missing.
  std::size_t HeaderLine() const { return headerLine_; }
  /// True when the file starts with a mark that the reading code does not know everywhere. The
  /// lines are those of the text behind it.
  bool HasMark() const { return hasMark_; }

 private:
  void AddLine(std::size_t number, std::string_view line);

  std::vector<KeyLine> keys_;
  std::map<std::string, std::size_t> counting_;  ///< by folded name, into keys_
  std::size_t headerLine_ = 0;
  bool hasMark_ = false;
  KeyLine::Place place_ = KeyLine::Place::Outside;
};

}  // namespace tavrin::tool
