#include "check/Columns.h"

#include <algorithm>
#include <string>
#include <string_view>

#include "check/Rules.h"
#include "files/TextForms.h"

namespace tavrin::tool {

namespace {

constexpr char kBlanks[] = " \t\v\f\x1A";

/// From 0; of a line without a value where the value would be.
std::size_t ValueBegin(const KeyLine& line) {
  const std::size_t begin = line.text.find_first_not_of(kBlanks, line.text.find('=') + 1);
  return std::min(begin, line.text.size());
}

/// The longest of the texts in quotes that the value has in it, from 0; npos when there is none.
std::size_t QuotedPart(const std::string& what, const KeyLine& line) {
  std::size_t column = std::string::npos;
  std::size_t longest = 0;
  std::size_t open = what.find('"');
  while (open != std::string::npos) {
    const std::size_t close = what.find('"', open + 1);
    if (close == std::string::npos) break;
    const std::string quoted = what.substr(open + 1, close - open - 1);
    const std::size_t at = line.text.find(quoted, ValueBegin(line));
    if (quoted.size() > longest && at != std::string::npos) {
      column = at;
      longest = quoted.size();
    }
    open = what.find('"', close + 1);
  }
  return column;
}

/// From 0, in what the index has of the line.
std::size_t ColumnOf(const Reading& reading, const Finding& finding, const KeyLine& line) {
  const std::size_t key = std::min(line.text.find_first_not_of(kBlanks), line.text.size());
  if (!line.hasEquals || line.value.empty()) return key;
  const std::size_t quoted = QuotedPart(finding.what, line);
  if (quoted != std::string::npos) return quoted;
  const bool isRead = reading.lines.Find(line.name) == &line && reading.Find(line.name) != nullptr;
  return isRead ? ValueBegin(line) : key;
}

}  // namespace

void PlaceColumns(const Reading& reading, Findings* findings) {
  const LineIndex& lines = reading.lines;
  const auto& keys = lines.Keys();
  for (Finding& finding : *findings) {
    const auto line = std::lower_bound(
        keys.begin(), keys.end(), finding.line,
        [](const KeyLine& key, std::size_t number) { return key.number < number; });
    const bool isOfKey =
        line != keys.end() && line->number == finding.line &&
        (Shortened(line->name) == finding.key || Folded(line->name) == Folded(finding.key));
    if (finding.column == 0 && isOfKey) finding.column = ColumnOf(reading, finding, *line) + 1;
    if (finding.column == 0 || lines.IsUtf16() || finding.line > lines.Lines().size()) continue;
    const std::string before = lines.Lines()[finding.line - 1].substr(0, finding.column - 1);
    finding.column = CountCharacters(before) + 1;
  }
}

}  // namespace tavrin::tool
