#include "check/RuleList.h"

#include <algorithm>

namespace tavrin::tool {

using Scope = Rule::Scope;

const std::vector<Rule>& ListRules() {
  static const std::vector<Rule> kRules = {
      {"address", "An address looks like IPv4 and is none, or is a URL.", Scope::Line},
      {"beyond-ascii", "Characters of texts depend on the code page of the machine.", Scope::Line},
      {"blank-in-number", "A number has a blank within.", Scope::Line},
      {"colon-for-equals", "A key and its value are separated by a colon.", Scope::Line},
      {"comment-mark", "A comment or a ruler begins with another mark than ;.", Scope::Line},
      {"container", "Whether a plain or an enciphered file was judged."},
      {"count-below-one", "A count below 1 counts as missing."},
      {"count-missing", "A count or list is missing, though the keys that it asks for are there."},
      {"counted-from-zero", "The entries of a table are numbered from 0 in place of 1."},
      {"damaged", "From a line on the file is no text."},
      {"decimal-comma", "A number has a comma before its decimals.", Scope::Line},
      {"default-used", "A key is missing and its default is used."},
      {"digits-beyond-ascii", "A number is written in digits that are not those of ASCII.",
       Scope::Line},
      {"digits-lost", "A length is cut to whole um.", Scope::Line},
      {"empty-category", "No slot is in an ink category, so the query for its slots fails."},
      {"end-mark", "A value ends with a comma or semicolon, as lines of other formats do.",
       Scope::Line},
      {"entries-missing", "A table counts more entries than are there."},
      {"exponent", "An integer has an exponent, which is not read.", Scope::Line},
      {"fields-beyond", "A list has more fields than are read.", Scope::Line},
      {"fields-missing", "A list has fewer fields than are asked for."},
      {"fraction", "A number is a fraction, or an integer has decimals.", Scope::Line},
      {"hexadecimal", "A number is hexadecimal, which is not read.", Scope::Line},
      {"hidden-section", "A byte order mark or the encoding hides the section."},
      {"implausible", "A value is in range, but no printer can use it.", Scope::Line},
      {"key-missing", "A key that another key asks for is missing."},
      {"key-twice", "A key is there twice; only its first line counts.", Scope::Line},
      {"later-section", "A second section [printer] is not read."},
      {"letter-in-number", "A number has a letter in place of a digit.", Scope::Line},
      {"line-continuation", "A value goes on in the next line, which is not read."},
      {"list-separator", "The fields of a list are not separated by commas alone.", Scope::Line},
      {"long-text", "A text of the identity is longer than hosts can get.", Scope::Line},
      {"long-value", "A value is longer than what is read of it.", Scope::Line},
      {"merge-conflict", "The marks of a merge conflict were left in the file."},
      {"mode-twice", "A mode is listed twice."},
      {"more-findings", "There are more findings than are shown."},
      {"no-equals-sign", "A line without = gives no value.", Scope::Line},
      {"no-line-end", "The file does not end in a line end and was perhaps cut off."},
      {"no-number", "A value that is to be a number is none.", Scope::Line},
      {"no-section", "Section [printer] is missing, or its header is mistyped."},
      {"no-slice", "The slice of a mode is not above 0.", Scope::Line},
      {"no-value", "A key has no value and counts as missing.", Scope::Line},
      {"no-version", "Version is missing, so the definition does not load."},
      {"nul", "A NUL ends a name or a value.", Scope::Line},
      {"number-in-part", "Only the start of a value is read as its number.", Scope::Line},
      {"number-range", "A number is beyond what the library can hold.", Scope::Line},
      {"open-header", "The header of the section has no ] at its end."},
      {"out-of-range", "A value is out of its key's range.", Scope::Line},
      {"outside-section", "Keys stand outside section [printer]."},
      {"padded-number", "Keys have other zeros before their numbers than what is read."},
      {"quotes", "A value has typographic quotes, or a quote at one end alone.", Scope::Line},
      {"same-code", "Two entries of a table have the same code."},
      {"same-digits", "Two codes of a table end in the same three digits."},
      {"same-number", "The ids of two ink types are equal as numbers."},
      {"second-equals-sign", "A value begins with another =, or with >.", Scope::Line},
      {"slots-without-ink", "The tables lack codes that the built-in slots name."},
      {"switch-value", "A switch has a value that is neither on nor off.", Scope::Line},
      {"text-behind-header", "Text follows the header of a section in its line.", Scope::Line},
      {"thousands-separator", "A number has thousands separators.", Scope::Line},
      {"two-keys", "Two keys stand in one line.", Scope::Line},
      {"uncalled-key", "No other key asks for this one."},
      {"uncounted-entries", "A count or list leaves out entries that are there."},
      {"undecodable", "Values have bytes that are no character of the user's encoding.",
       Scope::Line},
      {"unencodable", "A value has a character that the user's encoding lacks.", Scope::Line},
      {"unit", "A number has a unit, which is not read.", Scope::Line},
      {"unknown-code", "A slot names a code that no entry has."},
      {"unknown-default-mode", "The default mode is none of the modes."},
      {"unknown-ignore", "A comment for this check asks for something that it does not know.",
       Scope::Line},
      {"unknown-key", "Nothing reads this key.", Scope::Line},
      {"unknown-limited-mode", "A limited mode is none of the modes."},
      {"value-comment", "A comment stands behind a value and is part of it.", Scope::Line},
      {"value-range", "A value is beyond its range.", Scope::Line},
      {"word-for-switch", "A switch has a word in place of a number.", Scope::Line},
      {"wrong-container", "A file is plain that was to be enciphered, or the reverse."},
      {"wrong-number", "Keys have another number than what is read, as after copying."},
  };
  return kRules;
}

std::vector<std::string> RuleIds() {
  std::vector<std::string> ids;
  for (const Rule& rule : ListRules())
    ids.emplace_back(rule.id);
  return ids;
}

const Rule* FindRule(std::string_view id) {
  const auto& rules = ListRules();
  const auto found =
      std::find_if(rules.begin(), rules.end(), [&](const Rule& rule) { return rule.id == id; });
  return found == rules.end() ? nullptr : &*found;
}

}  // namespace tavrin::tool
