#include "commands/Completion.h"

#include <algorithm>
#include <cctype>

#include "check/LineIndex.h"
#include "check/RuleList.h"
#include "keys/KeyFacts.h"
#include "keys/KeyText.h"

namespace tavrin::tool {

namespace {

bool StartsWith(const std::string& text, const std::string& start) {
  return text.compare(0, start.size(), start) == 0;
}

bool TakesValue(const CLI::Option& option) {
  return option.get_expected_max() != 0;
}

/// Lists those words that go on as the last one begins.
class Completion {
 public:
  /// REQUIRES: there is a word.
  explicit Completion(const std::vector<std::string>& words) : words_(words) {}

  std::string Of(const CLI::App& app);

 private:
  bool FindPlace(const CLI::App& app);
  void Add(const std::string& word, const std::string& meaning = {});
  void AddCommands(const CLI::App& app);
  void AddOptions();
  /// What a name or a type of value in the help stands for; begin is how the value's word begins.
  void AddValues(const std::string& kind, const std::string& begin);
  void AddArguments();
  void AddKeys(const std::string& begin, const char* end);

  const std::string& Last() const { return words_.back(); }

  std::vector<std::string> words_;
  const CLI::App* command_ = nullptr;
  const CLI::Option* asking_ = nullptr;  ///< whose value the last word is
  bool areOptionsOver_ = false;
  std::size_t position_ = 0;  ///< how many arguments stand before the last word
  std::string lines_;
};

void Completion::Add(const std::string& word, const std::string& meaning) {
  if (!StartsWith(Folded(word), Folded(Last()))) return;
  lines_ += word + (meaning.empty() ? "" : '\t' + meaning.substr(0, meaning.find('\n'))) + '\n';
}

void Completion::AddCommands(const CLI::App& app) {
  for (const CLI::App* command : app.get_subcommands([](const CLI::App*) { return true; }))
    Add(command->get_name(), command->get_description());
}

void Completion::AddOptions() {
  for (const CLI::Option* option : command_->get_options()) {
    for (const std::string& name : option->get_lnames())
      Add("--" + name + (TakesValue(*option) ? "=" : ""), option->get_description());
  }
}

void Completion::AddKeys(const std::string& begin, const char* end) {
  for (const KeyFacts& facts : ListKeyFacts()) {
    const KnownKey key = KnownKeyOfShape(facts.shape);
    // A key of the number that has been begun, or else of the first.
    const std::string written = Last().substr(begin.size());
    std::size_t digits = key.prefix.size();
    while (digits < written.size() &&
           std::isdigit(static_cast<unsigned char>(written[digits])) != 0)
      ++digits;
    const bool isBegun = key.digits != 0 && digits > key.prefix.size();
    const std::string name =
        isBegun ? key.prefix + written.substr(key.prefix.size(), digits - key.prefix.size()) +
                      key.suffix
                : key.WithNumber(1);
    Add(begin + name + end, KeyText(facts).values);
  }
}

void Completion::AddValues(const std::string& kind, const std::string& begin) {
  if (kind.find('|') != std::string::npos) {
    for (const std::string& choice : CLI::detail::split(kind, '|'))
      Add(begin + choice);
  } else if (kind == "ID,...") {
    const std::size_t comma = Last().find_last_of(",=");
    const std::string before = comma == std::string::npos ? begin : Last().substr(0, comma + 1);
    for (const std::string& id : RuleIds())
      Add(before + id);
  } else if (kind == "KEY" || kind == "KEY=VALUE") {
    AddKeys(begin, kind == "KEY" ? "" : "=");
  } else if (kind == "COMMAND") {
    AddCommands(*command_->get_parent());
  } else {
    lines_ += ":files\n";
  }
}

/// Finds where the last word stands; false where the words before it are no command.
bool Completion::FindPlace(const CLI::App& app) {
  command_ = &app;
  for (auto word = words_.begin(); word + 1 != words_.end(); ++word) {
    if (asking_ != nullptr) {
      asking_ = nullptr;
    } else if (!areOptionsOver_ && word->size() > 1 && word->front() == '-') {
      areOptionsOver_ = *word == "--";
      const CLI::Option* option = command_->get_option_no_throw(*word);
      if (option != nullptr && TakesValue(*option)) asking_ = option;
    } else if (command_ == &app) {
      const auto named =
          app.get_subcommands([&](const CLI::App* part) { return part->get_name() == *word; });
      if (named.empty()) return false;
      command_ = named.front();
    } else {
      ++position_;
    }
  }
  return true;
}

void Completion::AddArguments() {
  const auto arguments =
      command_->get_options([](const CLI::Option* option) { return option->get_positional(); });
  if (arguments.empty()) return;
  const bool isRepeated =
      arguments.back()->get_expected_max() >= CLI::detail::expected_max_vector_size;
  if (position_ >= arguments.size() && !isRepeated) return;
  AddValues(arguments[std::min(position_, arguments.size() - 1)]->get_name(true), "");
}

std::string Completion::Of(const CLI::App& app) {
  if (!FindPlace(app)) return {};
  const bool isOption = !areOptionsOver_ && StartsWith(Last(), "-");
  const std::size_t equals = Last().find('=');
  if (asking_ != nullptr) {
    AddValues(asking_->get_type_name(), "");
  } else if (isOption && equals == std::string::npos) {
    AddOptions();
  } else if (isOption) {
    const CLI::Option* option = command_->get_option_no_throw(Last().substr(0, equals));
    if (option != nullptr) AddValues(option->get_type_name(), Last().substr(0, equals + 1));
  } else if (command_ == &app) {
    AddCommands(app);
  } else {
    AddArguments();
  }
  return lines_;
}

}  // namespace

std::string Completions(const CLI::App& app, const std::vector<std::string>& words) {
  return Completion(words.empty() ? std::vector<std::string>{""} : words).Of(app);
}

}  // namespace tavrin::tool
