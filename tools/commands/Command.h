#pragma once

#include <functional>
#include <optional>
#include <string>
#include <variant>
#include <vector>

#include "ExitStatus.h"

namespace tavrin::tool {

/// An argument or an option of a command, and where its value goes.
struct Argument {
  /// What it points to holds the default. A truth makes a switch; a list takes any number of
  /// values.
  using Value =
      std::variant<bool*, std::string*, std::optional<std::string>*, std::vector<std::string>*>;

  std::string name;  ///< of an option with its dashes
  Value value;
  std::string meaning;
  bool isRequired = false;
  std::string kind = {};                  ///< what the help has for an option's value
  std::vector<std::string> choices = {};  ///< the values there are, where not all are one
  bool isCommaSeparated = false;          ///< of a list
  /// What is wrong with a value; empty when nothing is.
  std::function<std::string(const std::string&)> mistakeIn = {};
  std::vector<std::string> excluded = {};  ///< switches listed before it that do not go with it
};

/// An argument that must be there.
Argument Required(std::string name, Argument::Value value, std::string meaning);

/// An option that takes one of the choices.
Argument Choice(std::string name, std::string* value, std::vector<std::string> choices,
                std::string meaning);

/// A command of the tool. What its arguments point to belongs to run.
struct Command {
  std::string name;
  std::string purpose;
  std::vector<Argument> arguments;
  std::string notes;  ///< paragraphs for its help, the last of them "Example: " and command lines
  std::function<ExitStatus()> run;
};

}  // namespace tavrin::tool
