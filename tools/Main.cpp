#include <exception>
#include <string_view>

#include <CLI/CLI.hpp>

#include "Failure.h"
#include "TavrinVersion.h"
#include "commands/CheckCommand.h"
#include "commands/CommandLine.h"
#include "commands/Completion.h"
#include "commands/DecipherCommand.h"
#include "commands/DiffCommand.h"
#include "commands/EncipherCommand.h"
#include "commands/GetCommand.h"
#include "commands/KeysCommand.h"
#include "commands/SetCommand.h"
#include "commands/ShowCommand.h"
#include "commands/TemplateCommand.h"
#include "files/FileTransfer.h"

namespace tavrin::tool {

namespace {

ExitStatus Run(int argc, char** argv) {
  CLI::App app("Makes, reads and shows the printer definition files of TavrinLib", "tavrin");
  // A path that starts with a slash is a path everywhere.
  app.allow_windows_style_options(false);
  app.set_version_flag("--version", "tavrin " TAVRIN_VERSION_STRING, "Print the version");
  app.failure_message(MistakeMessage);
  SetHelpForm(&app);
  app.footer(
      "A command's own help tells more: tavrin help check. Where a help names a document, such as\n"
      "docs/check.md, it lies with the others in " TAVRIN_DOCUMENTS
      "\nbeneath the directory of the installation.");
  // A command is not required here, so that a misspelt one is reported as such.
  app.require_subcommand(0, 1);
  app.callback([&app] {
    if (app.get_subcommands().empty()) throw CLI::RequiredError("A command");
  });
  ExitStatus status = ExitStatus::NothingToReport;
  for (const Command& command :
       {CheckCommand(), EncipherCommand(), DecipherCommand(), ShowCommand(), DiffCommand(),
        GetCommand(), SetCommand(), KeysCommand(), TemplateCommand(), HelpCommand(&app)})
    AddCommand(command, &app, &status);
  if (argc > 1 && argv[1] == std::string_view(kComplete)) {
    PrintText(Completions(app, {argv + 2, argv + argc}));
    return ExitStatus::NothingToReport;
  }
  try {
    app.parse(argc, argv);
  } catch (const CLI::ParseError& error) {
    return app.exit(error) == 0 ? ExitStatus::NothingToReport : ExitStatus::Usage;
  }
  return status;
}

}  // namespace

}  // namespace tavrin::tool

int main(int argc, char** argv) {
  try {
    return static_cast<int>(tavrin::tool::Run(argc, argv));
  } catch (const std::exception& error) {
    return static_cast<int>(tavrin::tool::ReportFailure(error));
  }
}
