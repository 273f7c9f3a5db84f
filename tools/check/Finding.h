#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <vector>

namespace tavrin::tool {

enum class Severity {
  Note,     ///< a default is used
  Warning,  ///< something written has no effect or a surprising one
  Error     ///< the definition does not load, or a query fails
};

/// How sure a remedy is.
enum class Certainty {
  None,    ///< only the author knows what is meant
  Likely,  ///< look before following it
  Certain  ///< it is what was meant
};

/// A change of one line: count characters from column on, both as the index has the line, become
/// text, which is ASCII; of it a line feed is the end that the file's lines have.
struct Edit {
  std::size_t line;    ///< from 1; 0: the byte order mark, which goes
  std::size_t column;  ///< from 0
  std::size_t count;
  std::string text;
};

/// One thing that an author should know about a definition.
struct Finding {
  std::string rule;  ///< the id of its kind, as ListRules has it
  std::size_t line;
  Severity severity;
  std::string key;
  std::string what;        ///< what happened
  std::string effect;      ///< what the printer gets instead
  std::string remedy;      ///< what to do
  std::size_t column = 0;  ///< from 1, of rules in the index's characters; 0: the line as a whole
  Certainty certainty = Certainty::None;
  std::vector<Edit> edits = {};  ///< what following the remedy changes, where it is certain
  std::string meant = {};        ///< the key that the line was to be, if it is another one
  std::string sum = {};  ///< its effect as one of those of a cause, where that is put otherwise
  std::optional<std::int32_t> missingMode = {};  ///< the mode that it finds the printer to lack
};

using Findings = std::vector<Finding>;

}  // namespace tavrin::tool
