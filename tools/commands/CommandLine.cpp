#include "commands/CommandLine.h"

#include <algorithm>
#include <filesystem>
#include <memory>
#include <optional>
#include <system_error>
#include <variant>
#include <vector>

#include "Failure.h"
#include "Spelling.h"
#include "commands/ManualPage.h"
#include "files/FilePath.h"
#include "files/FileTransfer.h"

namespace tavrin::tool {

namespace {

class HelpForm : public CLI::Formatter {
 public:
  std::string make_option_opts(const CLI::Option* option) const override {
    const bool takesValue = !option->get_positional() && option->get_expected_max() != 0;
    return takesValue ? '=' + option->get_type_name() : std::string();
  }
  std::string make_subcommands(const CLI::App* app, CLI::AppFormatMode mode) const override {
    return CLI::detail::find_and_replace(Formatter::make_subcommands(app, mode),
                                         "Subcommands:", "Commands:");
  }
  std::string make_footer(const CLI::App* app) const override {
    const std::string footer = app->get_footer();
    return (footer.empty() ? "" : footer + "\n\n") + kExitStatuses + '\n';
  }
};

std::string Suggestion(const std::string& nearest) {
  return nearest.empty() ? nearest : ", did you mean " + nearest + '?';
}

Failure NoCommand(const CLI::App& app, const std::string& name) {
  std::vector<std::string> names;
  for (const CLI::App* command : app.get_subcommands([](const CLI::App*) { return true; }))
    names.push_back(command->get_name());
  return {name, "is no command" + Suggestion(NearestName(name, names)), "see tavrin --help",
          ExitStatus::Usage};
}

const CLI::App* FindCommand(const CLI::App& app, const std::string& name) {
  const auto found =
      app.get_subcommands([&name](const CLI::App* command) { return command->get_name() == name; });
  if (found.empty()) throw NoCommand(app, name);
  return found.front();
}

/// Names that begin with a dash are taken for options.
bool LooksLikeFile(const std::string& option) {
  const std::string extension = option.size() < 4 ? "" : option.substr(option.size() - 4);
  std::error_code error;
  return extension == ".ini" || extension == ".dat" ||
         std::filesystem::exists(ToPath(option), error);
}

Failure NoOption(const CLI::App& command, const std::string& option) {
  if (LooksLikeFile(option)) {
    return {option, "is no option of " + FullName(command),
            "name a file that begins with a dash ./" + option, ExitStatus::Usage};
  }
  std::vector<std::string> names;
  for (const CLI::Option* known : command.get_options()) {
    for (const std::string& name : known->get_lnames())
      names.push_back("--" + name);
  }
  return {option, "is no option of " + FullName(command) + Suggestion(NearestName(option, names)),
          "see " + FullName(command) + " --help", ExitStatus::Usage};
}

bool IsOption(const std::string& argument) {
  return argument.size() > 1 && argument.front() == '-';
}

CLI::Option* Add(CLI::App* command, const Argument& argument, bool* value) {
  return command->add_flag(argument.name, *value, argument.meaning);
}

CLI::Option* Add(CLI::App* command, const Argument& argument, std::string* value) {
  const std::string otherwise = argument.choices.empty() ? "" : "; " + *value + " without it";
  return command->add_option(argument.name, *value, argument.meaning + otherwise);
}

CLI::Option* Add(CLI::App* command, const Argument& argument, std::optional<std::string>* value) {
  return command->add_option(argument.name, *value, argument.meaning);
}

CLI::Option* Add(CLI::App* command, const Argument& argument, std::vector<std::string>* value) {
  CLI::Option* option = command->add_option(argument.name, *value, argument.meaning);
  if (argument.isCommaSeparated) option->delimiter(',');
  // An option may be given again, with one value at a time.
  return option->allow_extra_args(!IsOption(argument.name));
}

}  // namespace

void AddCommand(const Command& command, CLI::App* app, ExitStatus* status) {
  CLI::App* added = app->add_subcommand(command.name, command.purpose);
  for (const Argument& argument : command.arguments) {
    CLI::Option* option =
        std::visit([&](auto* value) { return Add(added, argument, value); }, argument.value);
    option->required(argument.isRequired);
    if (!argument.kind.empty()) option->type_name(argument.kind);
    if (!argument.choices.empty()) {
      option->type_name(CLI::detail::join(argument.choices, "|"))
          ->check(CLI::IsMember(argument.choices).description(""));
    }
    if (argument.mistakeIn) option->check(CLI::Validator(argument.mistakeIn, ""));
    for (const std::string& switched : argument.excluded)
      option->excludes(added->get_option(switched));
  }
  added->footer(command.notes);
  added->callback([run = command.run, status] { *status = run(); });
}

void SetHelpForm(CLI::App* app) {
  const auto form = std::make_shared<HelpForm>();
  form->label("Positionals", "Arguments");
  form->label("SUBCOMMAND", "COMMAND");
  app->formatter(form);
  app->set_help_flag("-h,--help", "Print this help");
}

Command HelpCommand(CLI::App* app) {
  struct Options {
    std::string name;
    std::string format = "text";
  };
  const auto options = std::make_shared<Options>();
  return {"help",
          "Print the help of a command",
          {{"COMMAND", &options->name, "The command; without it the help lists all"},
           Choice("--format", &options->format, {"text", "man"},
                  "Text to read as it is, or the source of a manual page")},
          "Example: tavrin help check\n"
          "         tavrin help --format=man check | man -l -",
          [app, options] {
            const CLI::App* about = options->name.empty() ? app : FindCommand(*app, options->name);
            PrintText(options->format == "man"
                          ? ManualPage(*about)
                          : app->get_formatter()->make_help(about, FullName(*about),
                                                            CLI::AppFormatMode::Normal));
            return ExitStatus::NothingToReport;
          }};
}

std::string MistakeMessage(const CLI::App* app, const CLI::Error& error) {
  const std::vector<CLI::App*> used = app->get_subcommands();
  const CLI::App& command = used.empty() ? *app : *used.front();
  const std::vector<std::string> extras = app->remaining(true);
  const auto option = std::find_if(extras.begin(), extras.end(), IsOption);
  std::string text = error.what() + (" (see " + FullName(command) + " --help)");
  if (option != extras.end()) {
    text = NoOption(command, option->substr(0, option->find('='))).what();
  } else if (!extras.empty()) {
    text = (used.empty() ? NoCommand(*app, extras.front())
                         : Failure(extras.front(), "is one argument too many",
                                   "see " + FullName(command) + " --help"))
               .what();
  }
  return "tavrin: " + text + '\n';
}

}  // namespace tavrin::tool
