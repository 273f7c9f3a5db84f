#include "check/Rules.h"

#include <algorithm>
#include <stdexcept>

#include "check/Causes.h"
#include "check/Columns.h"
#include "check/Ignores.h"
#include "check/RuleList.h"

namespace tavrin::tool {

Finding& Check::Add(const char* rule, std::size_t line, Severity severity, const std::string& key,
                    const std::string& what, const std::string& effect,
                    const std::string& remedy) const {
  if (FindRule(rule) == nullptr) throw std::logic_error(std::string("no rule has the id ") + rule);
  findings->push_back(
      {rule, line, severity, key.empty() ? Quoted(key) : Shortened(key), what, effect, remedy});
  return findings->back();
}

Finding& Check::Add(const char* rule, Severity severity, const std::string& key,
                    const std::string& what, const std::string& effect,
                    const std::string& remedy) const {
  return Add(rule, reading.LineOf(key), severity, key, what, effect, remedy);
}

Finding& Check::Warn(const char* rule, const std::string& key, const std::string& what,
                     const std::string& effect, const std::string& remedy) const {
  return Add(rule, Severity::Warning, key, what, effect, remedy);
}

std::string Shortened(const std::string& text) {
  constexpr std::size_t kLongest = 40;
  if (text.size() <= kLongest) return text;
  const auto continuesCharacter = [](char c) { return (c & 0xC0) == 0x80; };
  std::size_t end = kLongest;
  while (end > kLongest - 3 && continuesCharacter(text[end]))
    --end;
  return text.substr(0, end) + "...";
}

std::string Quoted(const std::string& text) {
  return '"' + Shortened(text) + '"';
}

std::string Counted(std::size_t count, const std::string& noun) {
  return std::to_string(count) + ' ' + noun + (count == 1 ? "" : "s");
}

std::string Numbered(const std::string& text, std::int32_t number) {
  std::string numbered;
  for (const char c : text)
    numbered += c == '#' ? std::to_string(number) : std::string(1, c);
  return numbered;
}

Findings FindAll(const Reading& reading) {
  Findings findings;
  const Check check{reading, &findings};
  if (CheckMark(check)) return findings;
  for (const auto rules : {CheckSections, CheckLines, CheckValues, CheckTexts, CheckPrinter,
                           CheckModes, CheckInks, CheckRanges, CheckWhole, CheckIgnores})
    rules(check);
  FoldConsequences(reading, &findings);
  std::stable_sort(findings.begin(), findings.end(),
                   [](const Finding& a, const Finding& b) { return a.line < b.line; });
  DropIgnored(IgnoredBy(reading.lines), &findings);
  PlaceColumns(reading, &findings);
  return findings;
}

}  // namespace tavrin::tool
