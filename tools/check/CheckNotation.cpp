#include <algorithm>
#include <set>
#include <string>
#include <string_view>

#include "check/KeySuggestion.h"
#include "check/Rules.h"

namespace tavrin::tool {

namespace {

constexpr char kBlanks[] = " \t\v\f\x1A";
constexpr char kNoEffect[] = "the line has no effect";

bool BeginsWith(const std::string& text, const std::string& start) {
  return text.compare(0, start.size(), start) == 0;
}

std::string Trimmed(const std::string& text) {
  const std::size_t begin = std::min(text.find_first_not_of(kBlanks), text.size());
  return text.substr(begin, text.find_last_not_of(kBlanks) - begin + 1);
}

bool IsDigit(char c) {
  return c >= '0' && c <= '9';
}

/// Whether names of keys have such characters: whatever the locale, those of ASCII alone.
bool IsOfName(char c) {
  return IsDigit(c) || (c >= 'A' && c <= 'Z') || (c >= 'a' && c <= 'z') || c == '_';
}

/// What comments of other formats begin with; a line of such characters alone is a ruler.
std::string MarkOf(const std::string& line) {
  constexpr std::size_t kShortestRuler = 3;
  const bool isRuler = line.size() >= kShortestRuler &&
                       line.find_first_not_of(line.front()) == std::string::npos &&
                       line.front() > ' ' && line.front() < 0x7F && !IsOfName(line.front());
  if (isRuler) return line;
  for (const char* mark : {"//", "/*", "<!--", "--", "#", "%", "!"}) {
    if (BeginsWith(line, mark)) return mark;
  }
  return BeginsWith(Folded(line), "rem ") ? line.substr(0, 3) : std::string();
}

/// The mark that the line has in place of ;. Empty when it is no comment.
std::string CommentMarkOf(const KeyLine& line) {
  const std::string written = Trimmed(line.text);
  const std::string mark = MarkOf(written);
  // Other marks can be a slip in front of a key.
  const bool isAlways = mark == "#" || mark == "//" || mark == "/*" || mark == "<!--";
  return !line.hasEquals || isAlways || mark == written ? mark : std::string();
}

/// Looks for lines as other formats have them.
class NotationCheck {
 public:
  explicit NotationCheck(const Check& check) : check_(check), keys_(check.reading.lines.Keys()) {}

  std::set<std::size_t> Judge();

 private:
  bool JudgeComment(const KeyLine& line);
  bool JudgeConflict(std::size_t at);
  bool JudgeContinuation(std::size_t at);
  bool JudgeColon(const KeyLine& line);
  bool JudgeOtherSign(const KeyLine& line);
  bool JudgeValueBelow(std::size_t at);
  bool JudgeSecondKey(const KeyLine& line);
  Finding& Warn(const KeyLine& line, const char* rule, const std::string& key,
                const std::string& what, const std::string& effect, const std::string& remedy) {
    judged_.insert(line.number);
    return check_.Add(rule, line.number, Severity::Warning, key, what, effect, remedy);
  }
  /// Whether the file lacks the key, and it takes the value.
  bool IsMissing(const std::string& key, const std::string& value) const {
    std::int32_t number = 0;
    return check_.reading.KnownKeyOf(key, &number) != nullptr &&
           check_.reading.lines.Find(key) == nullptr && Takes(check_.reading, key, value);
  }

  const Check& check_;
  const std::vector<KeyLine>& keys_;
  std::set<std::size_t> judged_;
};

std::set<std::size_t> NotationCheck::Judge() {
  for (std::size_t i = 0; i < keys_.size(); ++i) {
    const KeyLine& line = keys_[i];
    if (judged_.count(line.number) != 0 || line.hasNul) continue;
    if (JudgeConflict(i) || JudgeComment(line) || JudgeContinuation(i)) continue;
    if (line.place == KeyLine::Place::Section)
      JudgeColon(line) || JudgeOtherSign(line) || JudgeValueBelow(i) || JudgeSecondKey(line);
  }
  return judged_;
}

bool NotationCheck::JudgeComment(const KeyLine& line) {
  const std::string mark = CommentMarkOf(line);
  if (mark.empty()) return false;
  const std::size_t at = line.text.find_first_not_of(kBlanks);
  const bool isRuler = mark.size() > 2 && mark == Trimmed(line.text);
  Finding& finding = Warn(line, "comment-mark", Shortened(mark), "comments begin with ; alone",
                          "the line counts as a key that nothing reads",
                          isRuler ? "write ; before it" : "write ; for " + mark);
  finding.column = at + 1;
  finding.certainty = Certainty::Certain;
  finding.edits = {{line.number, at, isRuler ? 0 : mark.size(), isRuler ? "; " : ";"}};
  return true;
}

/// Whether the line is a mark of a merge whose other marks need not be there.
bool IsLoneMark(const std::string& line) {
  return BeginsWith(line, ">>>>>>> ") || BeginsWith(line, "||||||| ");
}

/// One side of a conflict and the other are both read, line by line.
bool NotationCheck::JudgeConflict(std::size_t at) {
  if (IsLoneMark(keys_[at].text)) {
    Warn(keys_[at], "merge-conflict", keys_[at].text.substr(0, 7), "a mark of a merge is left",
         kNoEffect, "see whether the lines around it are those that are meant, and remove it");
    return true;
  }
  if (!BeginsWith(keys_[at].text, "<<<<<<<")) return false;
  const auto begin = keys_.begin() + static_cast<std::ptrdiff_t>(at);
  const auto end = std::find_if(
      begin, keys_.end(), [](const KeyLine& line) { return BeginsWith(line.text, ">>>>>>>"); });
  if (end == keys_.end()) return false;
  Warn(*begin, "merge-conflict", "<<<<<<<",
       "a merge conflict goes on to line " + std::to_string(end->number),
       "of the keys on both sides the first counts", "keep one side and remove the marks");
  for (auto line = begin; line <= end; ++line) {
    const KeyLine* first = check_.reading.lines.Find(line->name);
    const bool isMark = BeginsWith(line->text, "=======") || BeginsWith(line->text, "|||||||");
    if (isMark || line == end || (first != nullptr && first->number != line->number))
      judged_.insert(line->number);
  }
  return true;
}

bool NotationCheck::JudgeContinuation(std::size_t at) {
  const KeyLine& line = keys_[at];
  if (!line.hasEquals || line.value.empty() || line.value.back() != '\\') return false;
  std::string value = line.value;
  std::vector<Edit> edits;
  std::size_t next = at;
  while (!value.empty() && value.back() == '\\' && next + 1 < keys_.size() &&
         !keys_[next + 1].hasEquals && keys_[next + 1].number == keys_[next].number + 1) {
    const std::string part = Trimmed(keys_[++next].text);
    value = Trimmed(value.substr(0, value.size() - 1)) + part;
    edits.push_back({keys_[next].number, 0, 0, ";"});
    judged_.insert(keys_[next].number);
  }
  if (next == at) return false;
  Finding& finding =
      Warn(line, "line-continuation", line.name, "a backslash does not continue a line",
           "what follows in the next line is not read", "write it in one line");
  finding.meant = line.name;
  const std::size_t column = line.text.find_first_not_of(kBlanks, line.text.find('=') + 1);
  const bool isAscii = PlainPart(value) == value && value.back() != '\\';
  if (!isAscii) return true;
  finding.certainty = Certainty::Certain;
  finding.edits = edits;
  finding.edits.push_back({line.number, column, line.text.size() - column, value});
  return true;
}

/// Lines as YAML and JSON have them.
bool NotationCheck::JudgeColon(const KeyLine& line) {
  const std::size_t colon = line.text.find(':');
  if (colon == std::string::npos || colon > line.text.find('=')) return false;
  std::size_t begin = line.text.find_first_not_of(kBlanks);
  const bool isQuoted = line.text[begin] == '"';
  std::string name = Trimmed(line.text.substr(begin, colon - begin));
  if (isQuoted && name.size() > 1 && name.back() == '"') name = name.substr(1, name.size() - 2);
  std::size_t value = std::min(line.text.find_first_not_of(kBlanks, colon + 1), line.text.size());
  std::size_t end = line.text.find_last_not_of(kBlanks) + 1;
  const bool hasComma = end > value && line.text[end - 1] == ',';
  if (hasComma) --end;
  const bool isDoubled = value < end && line.text[value] == '=';
  if (isDoubled) value = std::min(line.text.find_first_not_of(kBlanks, value + 1), end);
  std::string text = line.text.substr(value, end - value);
  if (text.size() > 1 && text.front() == '"' && text.back() == '"')
    text = text.substr(1, text.size() - 2);
  const KeySuggestion meant = SuggestKey(check_.reading, name, text);
  if (meant.certainty == Certainty::Certain) name = meant.key;
  if (!IsMissing(name, text)) return false;
  Finding& finding = Warn(line, "colon-for-equals", name,
                          isQuoted ? "the line is written as in JSON" : "a colon is no equals sign",
                          kNoEffect, "write " + name + '=' + Shortened(text));
  finding.meant = name;
  finding.certainty = Certainty::Certain;
  if (hasComma) finding.edits.push_back({line.number, end, 1, ""});
  finding.edits.push_back({line.number, begin, value - begin, name + '='});
  return true;
}

/// A key and a value with anything but = between them, such as the sign of another script.
bool NotationCheck::JudgeOtherSign(const KeyLine& line) {
  if (line.hasEquals) return false;
  const auto begin = std::find_if(line.text.begin(), line.text.end(), IsOfName);
  const auto end = std::find_if_not(begin, line.text.end(), IsOfName);
  const std::string name(begin, end);
  auto rest = std::find_if(end, line.text.end(), [](char c) {
    return IsOfName(c) || std::string_view("+-.\"'").find(c) != std::string_view::npos;
  });
  if (rest == end && rest != line.text.end() && *rest == '-') ++rest;
  std::string value(rest, line.text.end());
  const std::size_t tag = value.find("</");  // as in XML
  value = Trimmed(value.substr(0, tag));
  if (value.empty() || !IsMissing(name, value)) return false;
  Finding& finding = Warn(line, "no-equals-sign", name, "a line without = gives no value",
                          kNoEffect, "write " + name + '=' + Shortened(value));
  finding.certainty = Certainty::Likely;
  finding.meant = name;
  return true;
}

/// A value that stands in the line below its key.
bool NotationCheck::JudgeValueBelow(std::size_t at) {
  const KeyLine& line = keys_[at];
  if (!line.hasEquals || at + 1 == keys_.size()) return false;
  const KeyLine& next = keys_[at + 1];
  const bool isList = !line.value.empty() && line.value.back() == ',';
  const std::string below = Trimmed(next.text);
  // What is more than one word can be a comment that nobody marked.
  const bool isValue = below.find(' ') == std::string::npos || isList;
  std::int32_t number = 0;
  if (next.hasEquals || !isValue || !CommentMarkOf(next).empty() ||
      next.number != line.number + 1 || (!line.value.empty() && !isList) ||
      check_.reading.lines.Find(line.name) != &line ||
      check_.reading.KnownKeyOf(line.name, &number) == nullptr ||
      !Takes(check_.reading, line.name, below))
    return false;
  Finding& finding =
      Warn(line, "line-continuation", line.name, "its value goes on in the next line",
           "what stands there is not read", "write it in one line");
  finding.meant = line.name;
  finding.certainty = Certainty::Likely;
  judged_.insert(next.number);
  return true;
}

/// A second key behind the value of the first.
bool NotationCheck::JudgeSecondKey(const KeyLine& line) {
  const std::string written = Trimmed(line.text.substr(line.text.find('=') + 1));
  if (line.value != written) return false;  // it stands in quotes
  const std::size_t first = line.text.find('=');
  for (std::size_t equals = line.text.find('=', first + 1); equals != std::string::npos;
       equals = line.text.find('=', equals + 1)) {
    const std::size_t last = line.text.find_last_not_of(kBlanks, equals - 1);
    std::size_t begin = last;
    while (begin > first && IsOfName(line.text[begin]))
      --begin;
    ++begin;
    // A number can run into the name.
    const bool isApart = begin > first + 1 && std::string_view(" \t,;").find(
                                                  line.text[begin - 1]) != std::string_view::npos;
    while (!isApart && begin <= last && IsDigit(line.text[begin]))
      ++begin;
    const std::size_t end = line.text.find_last_not_of(" \t,;", begin - 1) + 1;
    const bool isNumber = IsDigit(line.text[end - 1]);
    const std::string name = line.text.substr(begin, last + 1 - begin);
    if ((!isApart && !isNumber) || end <= first + 1 ||
        !IsMissing(name, Trimmed(line.text.substr(equals + 1))))
      continue;
    Finding& finding = Warn(line, "two-keys", line.name, name + " stands in the same line",
                            "it is part of the value", "write it in a line of its own");
    finding.column = begin + 1;
    finding.certainty = Certainty::Certain;
    finding.edits = {{line.number, end, begin - end, "\n"}};
    finding.meant = name;
    return true;
  }
  return false;
}

}  // namespace

bool IsForeignComment(const KeyLine& line) {
  return !CommentMarkOf(line).empty();
}

std::set<std::size_t> CheckNotation(const Check& check) {
  return NotationCheck(check).Judge();
}

}  // namespace tavrin::tool
