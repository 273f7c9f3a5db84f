#include "check/RuleList.h"

#include <algorithm>

namespace tavrin::tool {

const std::vector<Rule>& ListRules() {
  static const std::vector<Rule> kRules = {
      {"address", "An address looks like IPv4 and is none, or is a URL."},
      {"beyond-ascii", "Characters of texts depend on the code page of the machine."},
      {"container", "Whether a plain or an enciphered file was judged."},
      {"count-below-one", "A count below 1 counts as missing."},
      {"damaged", "From a line on the file is no text."},
      {"default-used", "A key is missing and its default is used."},
      {"digits-beyond-ascii", "A number is written in digits that are not those of ASCII."},
      {"digits-lost", "A length is cut to whole um."},
      {"empty-category", "No slot is in an ink category, so the query for its slots fails."},
      {"entries-missing", "A table counts more entries than are there."},
      {"fields-beyond", "A list has more fields than are read."},
      {"fields-missing", "A list has fewer fields than are asked for."},
      {"hidden-section", "A byte order mark or the encoding hides the section."},
      {"implausible", "A value is in range, but no printer can use it."},
      {"key-missing", "A key that another key asks for is missing."},
      {"key-twice", "A key is there twice; only its first line counts."},
      {"later-section", "A second section [printer] is not read."},
      {"long-text", "A text of the identity is longer than hosts can get."},
      {"long-value", "A value is longer than what is read of it."},
      {"mode-twice", "A mode is listed twice."},
      {"more-findings", "There are more findings than are shown."},
      {"no-equals-sign", "A line without = gives no value."},
      {"no-line-end", "The file does not end in a line end and was perhaps cut off."},
      {"no-number", "A value that is to be a number is none."},
      {"no-section", "Section [printer] is missing, or its header is mistyped."},
      {"no-slice", "The slice of a mode is not above 0."},
      {"no-value", "A key has no value and counts as missing."},
      {"no-version", "Version is missing, so the definition does not load."},
      {"nul", "A NUL ends a name or a value."},
      {"number-in-part", "Only the start of a value is read as its number."},
      {"number-range", "A number is beyond what the library can hold."},
      {"open-header", "The header of the section has no ] at its end."},
      {"out-of-range", "A value is out of its key's range."},
      {"outside-section", "Keys stand outside section [printer]."},
      {"quotes", "A value has typographic quotes, or a quote at one end alone."},
      {"same-code", "Two entries of a table have the same code."},
      {"same-digits", "Two codes of a table end in the same three digits."},
      {"same-number", "The ids of two ink types are equal as numbers."},
      {"slots-without-ink", "The tables lack codes that the built-in slots name."},
      {"switch-value", "A switch has a value that is neither on nor off."},
      {"text-behind-header", "Text follows the header of a section in its line."},
      {"uncalled-key", "No other key asks for this one."},
      {"undecodable", "Values have bytes that are no character of the user's encoding."},
      {"unencodable", "A value has a character that the user's encoding lacks."},
      {"unknown-code", "A slot names a code that no entry has."},
      {"unknown-default-mode", "The default mode is none of the modes."},
      {"unknown-ignore", "A comment for this check asks for something that it does not know."},
      {"unknown-key", "Nothing reads this key."},
      {"unknown-limited-mode", "A limited mode is none of the modes."},
      {"value-comment", "A comment stands behind a value and is part of it."},
      {"value-range", "A value is beyond its range."},
      {"wrong-container", "A file is plain that was to be enciphered, or the reverse."},
  };
  return kRules;
}

std::vector<std::string> RuleIds() {
  std::vector<std::string> ids;
  for (const Rule& rule : ListRules())
    ids.emplace_back(rule.id);
  return ids;
}

bool IsRule(std::string_view id) {
  const auto& rules = ListRules();
  return std::any_of(rules.begin(), rules.end(), [&](const Rule& rule) { return rule.id == id; });
}

}  // namespace tavrin::tool
