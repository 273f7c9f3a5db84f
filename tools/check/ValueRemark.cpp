#include "check/ValueRemark.h"

#include <algorithm>
#include <string>

namespace tavrin::tool {

namespace {

constexpr std::string_view kBlanks = " \t";
constexpr std::string_view kDigits = "0123456789";

bool IsOneOf(char c, std::string_view set) {
  return set.find(c) != std::string_view::npos;
}

/// How long the mark is that a comment begins with; 0 where none begins.
std::size_t MarkLength(std::string_view rest) {
  if (rest.front() == ';' || rest.front() == '#') return 1;
  return rest.substr(0, 2) == "//" || rest.substr(0, 2) == "--" ? 2 : 0;
}

/// Whether the remark can go above its line: all of it is known, and any encoding writes it alike.
bool IsPlain(const LineIndex& lines, std::string_view text) {
  const bool isKnown = !lines.IsUtf16() || text.find('?') == std::string_view::npos;
  return isKnown &&
         std::all_of(text.begin(), text.end(), [](char c) { return c >= ' ' && c < 0x7F; });
}

}  // namespace

std::optional<ValueRemark> RemarkIn(std::string_view value, bool isName) {
  for (std::size_t i = 0; i < value.size(); ++i) {
    const std::string_view rest = value.substr(i);
    const std::size_t length = MarkLength(rest);
    const bool isLast = rest.size() == 1;
    if (length == 0 && !(isLast && rest.front() == ',')) continue;
    const bool isBehindBlank = i == 0 || IsOneOf(value[i - 1], kBlanks);
    const std::size_t end = i == 0 ? 0 : value.find_last_not_of(kBlanks, i - 1) + 1;
    const std::string_view text = Trim(rest.substr(std::max<std::size_t>(length, 1)));
    const bool isSemicolon = rest.front() == ';';
    if (isLast && (isSemicolon || rest.front() == ',')) {
      return ValueRemark{end, i, {}, end > 0 && (isSemicolon || !isName)};
    }
    // In front of a digit, # means a number; -- can be a dash.
    const bool isNumberSign =
        rest.front() == '#' && !text.empty() && IsOneOf(text.front(), kDigits);
    const bool isDash = rest.front() == '-';
    const bool isSpaced = isSemicolon && rest.size() > 1 && IsOneOf(rest[1], kBlanks);
    if (isBehindBlank ? isNumberSign || (isName && isDash) : !isSemicolon || (isName && !isSpaced))
      continue;
    const bool isSure = end > 0 && isBehindBlank && (isSemicolon || rest.front() == '/' || !isName);
    return ValueRemark{end, i, text, isSure};
  }
  return std::nullopt;
}

void AddRemark(const Check& check, const KeyLine& line, const std::string& key, std::size_t column,
               const ValueRemark& remark) {
  const std::string written = line.text.substr(column + remark.mark);
  const bool isEndMark = remark.text.empty() && Trim(written).size() == 1;
  Finding& finding = check.Add(
      isEndMark ? "end-mark" : "value-comment", line.number, Severity::Warning, key,
      isEndMark ? "no line ends in " + Quoted(std::string(Trim(written)))
                : "there is no comment behind a value",
      isEndMark ? "it is part of the value" : Quoted(std::string(Trim(written))) + " is part of it",
      isEndMark ? "remove it" : "write it above in a line that begins with ;");
  finding.column = column + remark.mark + 1;
  finding.certainty = Certainty::Likely;
  if (!remark.isSure || line.hasNul || !IsPlain(check.reading.lines, remark.text)) return;
  finding.certainty = Certainty::Certain;
  if (!remark.text.empty())
    finding.edits.push_back({line.number, 0, 0, "; " + std::string(remark.text) + '\n'});
  const std::size_t begin = column + remark.end;
  const std::size_t end = line.text.find_last_not_of(" \t\v\f\x1A") + 1;
  finding.edits.push_back({line.number, begin, end - begin, ""});
}

}  // namespace tavrin::tool
