#include "check/RuleList.h"

#include <algorithm>

namespace tavrin::tool {

const std::vector<Rule>& ListRules() {
  static const std::vector<Rule> kRules = {
      {"address", "An address looks like IPv4 and is none, or is a URL."},
      {"beyond-ascii", "Characters of texts depend on the code page of the machine."},
      {"blank-in-number", "A number has a blank within."},
      {"colon-for-equals", "A key and its value are separated by a colon."},
      {"comment-behind-number", "A comment behind a number belongs to the value."},
      {"comment-mark", "A comment begins with another mark than ;."},
      {"container", "Whether a plain or an enciphered file was judged."},
      {"count-below-one", "A count below 1 counts as missing."},
      {"count-missing", "A count or list is missing, though the keys that it asks for are there."},
      {"counted-from-zero", "The entries of a table are numbered from 0 in place of 1."},
      {"damaged", "From a line on the file is no text."},
      {"decimal-comma", "A number has a comma before its decimals."},
      {"default-used", "A key is missing and its default is used."},
      {"digits-beyond-ascii", "A number is written in digits that are not those of ASCII."},
      {"digits-lost", "A length is cut to whole um."},
      {"empty-category", "No slot is in an ink category, so the query for its slots fails."},
      {"entries-missing", "A table counts more entries than are there."},
      {"exponent", "An integer has an exponent, which is not read."},
      {"fields-beyond", "A list has more fields than are read."},
      {"fields-missing", "A list has fewer fields than are asked for."},
      {"fraction", "A number is a fraction, or an integer has decimals."},
      {"hexadecimal", "A number is hexadecimal, which is not read."},
      {"hidden-section", "A byte order mark or the encoding hides the section."},
      {"implausible", "A value is in range, but no printer can use it."},
      {"key-missing", "A key that another key asks for is missing."},
      {"key-twice", "A key is there twice; only its first line counts."},
      {"later-section", "A second section [printer] is not read."},
      {"letter-in-number", "A number has a letter in place of a digit."},
      {"line-continuation", "A backslash is to continue a line, which it does not."},
      {"list-separator", "The fields of a list are not separated by commas alone."},
      {"long-text", "A text of the identity is longer than hosts can get."},
      {"long-value", "A value is longer than what is read of it."},
      {"merge-conflict", "The marks of a merge conflict were left in the file."},
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
      {"padded-number", "Keys have other zeros before their numbers than what is read."},
      {"quotes", "A value has typographic quotes, or a quote at one end alone."},
      {"same-code", "Two entries of a table have the same code."},
      {"same-digits", "Two codes of a table end in the same three digits."},
      {"same-number", "The ids of two ink types are equal as numbers."},
      {"second-equals-sign", "A value begins with another =."},
      {"slots-without-ink", "The tables lack codes that the built-in slots name."},
      {"switch-value", "A switch has a value that is neither on nor off."},
      {"text-behind-header", "Text follows the header of a section in its line."},
      {"thousands-separator", "A number has thousands separators."},
      {"uncalled-key", "No other key asks for this one."},
      {"uncounted-entries", "A count or list leaves out entries that are there."},
      {"undecodable", "Values have bytes that are no character of the user's encoding."},
      {"unencodable", "A value has a character that the user's encoding lacks."},
      {"unit", "A number has a unit, which is not read."},
      {"unknown-code", "A slot names a code that no entry has."},
      {"unknown-default-mode", "The default mode is none of the modes."},
      {"unknown-ignore", "A comment for this check asks for something that it does not know."},
      {"unknown-key", "Nothing reads this key."},
      {"unknown-limited-mode", "A limited mode is none of the modes."},
      {"value-comment", "A comment stands behind a value and is part of it."},
      {"value-range", "A value is beyond its range."},
      {"word-for-switch", "A switch has a word in place of a number."},
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
