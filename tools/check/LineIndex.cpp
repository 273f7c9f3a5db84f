#include "check/LineIndex.h"

#include <algorithm>
#include <initializer_list>

#include "definition/PrinterKeys.h"

namespace tavrin::tool {

namespace {

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

}  // namespace

std::string_view Trim(std::string_view text) {
  constexpr char kBlanks[] = " \t\v\f\x1A";
  const std::size_t begin = std::min(text.find_first_not_of(kBlanks), text.size());
  return text.substr(begin, text.find_last_not_of(kBlanks) - begin + 1);
}

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

TextFormat TextFormat::Of(const Bytes& plain) {
  const auto beginsWith = [&](std::initializer_list<unsigned char> mark) {
    return plain.size() >= mark.size() && std::equal(mark.begin(), mark.end(), plain.begin());
  };
  if (beginsWith({0xFF, 0xFE})) return {2, 2, 0};
  if (beginsWith({0xFE, 0xFF})) return {2, 2, 1};
  if (beginsWith({0xEF, 0xBB, 0xBF})) return {3};
  for (const std::size_t lowByte : {std::size_t{0}, std::size_t{1}}) {
    const TextFormat unmarked = {0, 2, lowByte};
    const std::string header = std::string("[") + kPrinterSection + ']';
    if (Folded(TextOf(plain, unmarked)).find(header) != std::string::npos) return unmarked;
  }
  return {};
}

std::string TextOf(const Bytes& plain, const TextFormat& format) {
  if (format.unitLength == 1)
    return std::string(plain.begin() + static_cast<std::ptrdiff_t>(format.markLength), plain.end());
  constexpr char kOutOfStep = '\x01';
  const auto isAscii = [](unsigned char low, unsigned char high) {
    return high == 0 && low < 0x80;
  };
  std::string text;
  std::size_t swapped = 0;  // units in a row that are ASCII with their bytes the wrong way round
  for (std::size_t i = format.markLength; i + 1 < plain.size(); i += 2) {
    const unsigned char low = plain[i + format.lowByte];
    const unsigned char high = plain[i + 1 - format.lowByte];
    swapped = isAscii(high, low) ? swapped + 1 : 0;
    text += isAscii(low, high) ? static_cast<char>(low) : swapped > 2 ? kOutOfStep : '?';
  }
  return text;
}

std::string_view TakeLine(std::string_view* rest) {
  const std::size_t length = std::min(rest->find_first_of("\r\n"), rest->size());
  const std::string_view line = rest->substr(0, length);
  rest->remove_prefix(length);
  rest->remove_prefix(rest->substr(0, 2) == "\r\n" ? 2 : rest->empty() ? 0 : 1);
  return line;
}

LineIndex::LineIndex(const Bytes& plain, const TextFormat& format, bool isKnown)
    : format_(format), isKnown_(isKnown) {
  const std::string text = TextOf(plain, format);
  std::string_view rest = text;
  while (!rest.empty()) {
    starts_.push_back(text.size() - rest.size());
    lines_.emplace_back(TakeLine(&rest));
    AddLine(lines_.size(), lines_.back());
  }
  const bool hasEnd = text.find_last_of("\r\n") == text.size() - 1;
  const bool isWhole = (plain.size() - format.markLength) % format.unitLength == 0;
  isEnded_ = isWhole && (hasEnd || lines_.empty() || Trim(lines_.back()).empty());
}

void LineIndex::AddLine(std::size_t number, std::string_view text) {
  const std::string_view line = Trim(text);
  if (line.empty()) return;
  if (line.front() == ';') {
    comments_.push_back({number, std::string(line.substr(1))});
  } else if (line.front() == '[') {
    AddHeader(number, text);
  } else {
    AddKey(number, text);
  }
}

void LineIndex::AddHeader(std::size_t number, std::string_view text) {
  const std::size_t begin = text.find('[');
  const std::size_t end = std::min(text.find(']'), text.size());
  SectionHeader header = {number,
                          KeyLine::Place::Outside,
                          false,
                          end < text.size(),
                          Spelled(text.substr(begin + 1, end - begin - 1)),
                          begin,
                          std::min(end + 1, text.size())};
  if (Folded(header.name) == kPrinterSection) {
    // Where the reading code does not know a mark it takes it for text, but of the first line
    // alone.
    header.isHidden = !isKnown_ && (IsUtf16() || number == 1);
    std::size_t& first = header.isHidden ? hiddenHeaderLine_ : headerLine_;
    if (!header.isHidden)
      header.place = first == 0 ? KeyLine::Place::Section : KeyLine::Place::LaterSection;
    if (first == 0) first = number;
  }
  place_ = header.place;
  headers_.push_back(header);
}

void LineIndex::AddKey(std::size_t number, std::string_view text) {
  const std::string_view line = Trim(text);
  const std::size_t equals = std::min(line.find('='), line.size());
  const bool hasEquals = equals < line.size();
  const std::string name = Spelled(line.substr(0, equals));
  if (place_ == KeyLine::Place::Section) counting_.emplace(Folded(name), keys_.size());
  keys_.push_back({number, place_, hasEquals, name,
                   hasEquals ? Unquoted(Spelled(line.substr(equals + 1))) : std::string(),
                   line.find('\0') != std::string_view::npos, std::string(text)});
}

const KeyLine* LineIndex::Find(std::string_view key) const {
  const auto found = counting_.find(Folded(key));
  return found == counting_.end() ? nullptr : &keys_[found->second];
}

}  // namespace tavrin::tool
