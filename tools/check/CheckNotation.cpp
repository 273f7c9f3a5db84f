#include <algorithm>
#include <cctype>
#include <set>
#include <string>

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
  bool JudgeBlank(const KeyLine& line);
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
    if (JudgeComment(line) || JudgeConflict(i) || JudgeContinuation(i)) continue;
    if (line.place == KeyLine::Place::Section) JudgeColon(line) || JudgeBlank(line);
  }
  return judged_;
}

bool NotationCheck::JudgeComment(const KeyLine& line) {
  const std::size_t at = line.text.find_first_not_of(kBlanks);
  const bool isSlashes = line.text.compare(at, 2, "//") == 0;
  if (!isSlashes && line.text[at] != '#') return false;
  const std::string mark = isSlashes ? "//" : "#";
  Finding& finding = Warn(line, "comment-mark", mark, "comments begin with ; alone",
                          "the line counts as a key that nothing reads", "write ; for " + mark);
  finding.column = at + 1;
  finding.certainty = Certainty::Certain;
  finding.edits = {{line.number, at, mark.size(), ";"}};
  return true;
}

/// One side of a conflict and the other are both read, line by line.
bool NotationCheck::JudgeConflict(std::size_t at) {
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

bool NotationCheck::JudgeBlank(const KeyLine& line) {
  if (line.hasEquals) return false;
  const std::size_t begin = line.text.find_first_not_of(kBlanks);
  const std::size_t blank = line.text.find_first_of(" \t", begin);
  if (blank == std::string::npos) return false;
  const std::string name = line.text.substr(begin, blank - begin);
  const std::string value = Trimmed(line.text.substr(blank));
  if (value.empty() || !IsMissing(name, value)) return false;
  Warn(line, "no-equals-sign", name, "a line without = gives no value", kNoEffect,
       "write " + name + '=' + Shortened(value))
      .certainty = Certainty::Likely;
  check_.findings->back().meant = name;
  return true;
}

}  // namespace

std::set<std::size_t> CheckNotation(const Check& check) {
  return NotationCheck(check).Judge();
}

}  // namespace tavrin::tool
