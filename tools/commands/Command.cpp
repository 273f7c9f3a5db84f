#include "commands/Command.h"

#include <utility>

namespace tavrin::tool {

Argument Required(std::string name, Argument::Value value, std::string meaning) {
  return {std::move(name), value, std::move(meaning), true};
}

Argument Choice(std::string name, std::string* value, std::vector<std::string> choices,
                std::string meaning) {
  Argument choice = {std::move(name), value, std::move(meaning)};
  choice.choices = std::move(choices);
  return choice;
}

}  // namespace tavrin::tool
