#include "check/LineEdits.h"

#include <algorithm>
#include <string_view>

namespace tavrin::tool {

namespace {

constexpr char kBlanks[] = " \t\v\f\x1A";

/// Without the blanks round it, the part of a line from begin to end.
Edit EditOf(const KeyLine& line, std::size_t begin, std::size_t end, const std::string& text) {
  const std::string_view part = std::string_view(line.text).substr(begin, end - begin);
  const std::size_t first = std::min(part.find_first_not_of(kBlanks), part.size());
  const std::size_t last = part.find_last_not_of(kBlanks) + 1;
  return {line.number, begin + first, last > first ? last - first : 0, text};
}

void Follow(Edit edit, Certainty certainty, Finding* finding) {
  finding->column = edit.column + 1;
  finding->certainty = certainty;
  if (certainty == Certainty::Certain) finding->edits.push_back(std::move(edit));
}

}  // namespace

void AddValueEdit(const KeyLine& line, std::size_t field, const std::string& text,
                  Certainty certainty, Finding* finding) {
  if (line.hasNul) return;
  std::size_t begin = line.text.find('=') + 1;
  std::size_t end = line.text.size();
  if (field != kWholeValue) {
    const std::size_t quote = line.text.find_first_not_of(kBlanks, begin);
    const bool isQuoted =
        quote != std::string::npos && (line.text[quote] == '"' || line.text[quote] == '\'');
    if (isQuoted) {
      begin = quote + 1;
      end = std::max(line.text.rfind(line.text[quote]), begin);
    }
    for (; field > 0; --field)
      begin = line.text.find(',', begin) + 1;
    end = std::min(line.text.find(',', begin), end);
  }
  Follow(EditOf(line, begin, end, text), certainty, finding);
}

void AddNameEdit(const KeyLine& line, const std::string& name, Certainty certainty,
                 Finding* finding) {
  if (line.hasNul) return;
  Follow(EditOf(line, 0, std::min(line.text.find('='), line.text.size()), name), certainty,
         finding);
}

}  // namespace tavrin::tool
