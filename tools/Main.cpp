#include <exception>
#include <optional>
#include <string>

#include <CLI/CLI.hpp>

#include "Failure.h"
#include "TavrinVersion.h"
#include "commands/CheckCommand.h"
#include "commands/CipherCommands.h"
#include "commands/KeysCommand.h"
#include "commands/ShowCommand.h"
#include "commands/TemplateCommand.h"

namespace {

constexpr int kFailed = 1;
constexpr int kUsageError = 2;

struct Arguments {
  std::string ini;
  std::string definition;
  std::optional<std::string> plainOutput;
  std::string showFormat = "text";
};

void AddEncipher(CLI::App* app, Arguments* arguments) {
  CLI::App* command = app->add_subcommand("encipher", "Make a printer definition from an INI file");
  command->add_option("INI", arguments->ini, "The plain INI file")->required();
  command->add_option("DEFINITION", arguments->definition, "The printer definition to write")
      ->required();
  command->footer("Example: tavrin encipher printer.ini printer.dat");
  command->callback([arguments] { tavrin::tool::Encipher(arguments->ini, arguments->definition); });
}

void AddDecipher(CLI::App* app, Arguments* arguments) {
  CLI::App* command = app->add_subcommand("decipher", "Turn a printer definition into an INI file");
  command->add_option("DEFINITION", arguments->definition, "The printer definition")->required();
  command->add_option("INI", arguments->plainOutput,
                      "The INI file to write, readable by its owner alone; standard output "
                      "without it");
  command->footer("Example: tavrin decipher printer.dat printer.ini");
  command->callback(
      [arguments] { tavrin::tool::Decipher(arguments->definition, arguments->plainOutput); });
}

void AddShow(CLI::App* app, Arguments* arguments) {
  CLI::App* command = app->add_subcommand("show", "Print what a printer definition says");
  command->add_option("DEFINITION", arguments->definition, "The printer definition")->required();
  command->add_option("--format", arguments->showFormat, "text for people, json for programs")
      ->check(CLI::IsMember({"text", "json"}))
      ->capture_default_str();
  command->footer(
      "Prints every answer that a host gets from the library, defaults included.\n"
      "docs/show-json.md describes the JSON.\n"
      "Exit status: 0, or 1 when the definition cannot be loaded or one of its texts is too long\n"
      "to be handed out.\n\n"
      "Example: tavrin show printer.dat\n"
      "         tavrin show --format=json printer.dat");
  command->callback([arguments] {
    using tavrin::tool::ShowFormat;
    tavrin::tool::Show(arguments->definition,
                       arguments->showFormat == "json" ? ShowFormat::Json : ShowFormat::Text);
  });
}

void AddTemplate(CLI::App* app) {
  CLI::App* command =
      app->add_subcommand("template", "Print a plain INI file to make a definition from");
  command->footer(
      "It has every key, with meaning, unit, default and range. As it stands it loads to the\n"
      "library's own defaults: change the values that differ in your printer, and take away the\n"
      "';' before the keys that it needs. tavrin check then tells what the library makes of it;\n"
      "docs/definition-file.md has the rules in full.\n\n"
      "Example: tavrin template > printer.ini\n"
      "         tavrin check printer.ini\n"
      "         tavrin encipher printer.ini printer.dat");
  command->callback(tavrin::tool::PrintTemplate);
}

std::string UsageMessage(const CLI::App* /*app*/, const CLI::Error& error) {
  return std::string("tavrin: ") + error.what() + " (see tavrin --help)\n";
}

int Run(int argc, char** argv) {
  CLI::App app("Makes, reads and shows the printer definition files of TavrinLib", "tavrin");
  // A path that starts with a slash is a path everywhere.
  app.allow_windows_style_options(false);
  app.set_version_flag("--version", "tavrin " TAVRIN_VERSION_STRING);
  app.failure_message(UsageMessage);
  // A command is not required here, so that a misspelt one is reported as such.
  app.require_subcommand(0, 1);
  app.callback([&app] {
    if (app.get_subcommands().empty()) throw CLI::RequiredError("A command");
  });
  Arguments arguments;
  AddEncipher(&app, &arguments);
  AddDecipher(&app, &arguments);
  AddShow(&app, &arguments);
  AddTemplate(&app);
  int status = 0;
  tavrin::tool::AddCheck(&app, &status);
  tavrin::tool::AddKeys(&app, &status);
  try {
    app.parse(argc, argv);
  } catch (const CLI::ParseError& error) {
    return app.exit(error) == 0 ? 0 : kUsageError;
  }
  return status;
}

}  // namespace

int main(int argc, char** argv) {
  try {
    return Run(argc, argv);
  } catch (const std::exception& error) {
    tavrin::tool::ReportFailure(error);
  }
  return kFailed;
}
