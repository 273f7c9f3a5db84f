#include "check/LineIndex.h"

#include <algorithm>

#include "definition/PrinterKeys.h"

namespace tavrin::tool {

namespace {

std::string_view Trim(std::string_view text) {
  constexpr char kBlanks[] = " \t\v\f\x1A";
  const std::size_t begin = std::min(text.find_first_not_of(kBlanks), text.size());
  return text.substr(begin, text.find_last_not_of(kBlanks) - begin + 1);
}

/// A NUL ends what a part of a line spells.
std::string Spelled(std::string_view part) {
  const std::string_view text = Trim(part);
  return std::string(text.substr(0, text.find('\0')));
}

std::string Unquoted(const std::string& value) {
  const bool isQuoted = value.size() >= 2 && value.front() == value.back() &&
                        (value.front() == '"' || value.front() == '\'');
  return isQuoted ? value.substr(1, value.size() - 2) : value;
}

std::string FromUtf16(std::string_view bytes, std::size_t lowByte) {
  std::string text;
  for (std::size_t i = 0; i + 1 < bytes.size(); i += 2) {
    const char low = bytes[i + lowByte];
    const bool isAscii = bytes[i + 1 - lowByte] == '\0' && static_cast<unsigned char>(low) < 0x80;
    text += isAscii ? low : '?';
  }
  return text;
}

/// Leaves out the mark at the start.
std::string TextOf(const Bytes& plain, bool* hasMark) {
  const std::string_view bytes(reinterpret_cast<const char*>(plain.data()), plain.size());
  if (bytes.substr(0, 2) == "\xFF\xFE") return FromUtf16(bytes.substr(2), 0);
  *hasMark = true;
  if (bytes.substr(0, 2) == "\xFE\xFF") return FromUtf16(bytes.substr(2), 1);
  if (bytes.substr(0, 3) == "\xEF\xBB\xBF") return std::string(bytes.substr(3));
  *hasMark = false;
  return std::string(bytes);
}

std::string_view TakeLine(std::string_view* rest) {
  const std::size_t length = std::min(rest->find_first_of("\r\n"), rest->size());
  const std::string_view line = rest->substr(0, length);
  rest->remove_prefix(length);
  rest->remove_prefix(rest->substr(0, 2) == "\r\n" ? 2 : rest->empty() ? 0 : 1);
  return line;
}

}  // namespace

std::string Folded(std::string_view name) {
  std::string folded(name);
  std::transform(name.begin(), name.end(), folded.begin(), [](char c) {
    return c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c;
  });
  return folded;
}

bool KeyLine::HasPlainName() const {
  return PlainPart(name) == name;
}

LineIndex::LineIndex(const Bytes& plain) {
  const std::string text = TextOf(plain, &hasMark_);
  std::string_view rest = text;
  for (std::size_t number = 1; !rest.empty(); ++number)
    AddLine(number, Trim(TakeLine(&rest)));
}

void LineIndex::AddLine(std::size_t number, std::string_view line) {
  if (line.empty() || line.front() == ';') return;
  if (line.front() == '[') {
    const bool isPrinter = Folded(Spelled(line.substr(1, line.find(']') - 1))) == kPrinterSection;
    place_ = !isPrinter         ? KeyLine::Place::Outside
             : headerLine_ == 0 ? KeyLine::Place::Section
                                : KeyLine::Place::LaterSection;
    if (place_ == KeyLine::Place::Section) headerLine_ = number;
    return;
  }
  const std::size_t equals = std::min(line.find('='), line.size());
  const bool hasEquals = equals < line.size();
  const std::string name = Spelled(line.substr(0, equals));
  if (place_ == KeyLine::Place::Section) counting_.emplace(Folded(name), keys_.size());
  keys_.push_back({number, place_, hasEquals, name,
                   hasEquals ? Unquoted(Spelled(line.substr(equals + 1))) : std::string()});
}

const KeyLine* LineIndex::Find(std::string_view key) const {
  const auto found = counting_.find(Folded(key));
  return found == counting_.end() ? nullptr : &keys_[found->second];
}

}  // namespace tavrin::tool
