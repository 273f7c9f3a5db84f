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

namespace {

using tavrin::tool::ExitStatus;

ExitStatus Run(int argc, char** argv) {
  CLI::App app("Makes, reads and shows the printer definition files of TavrinLib", "tavrin");
  // A path that starts with a slash is a path everywhere.
  app.allow_windows_style_options(false);
  app.set_version_flag("--version", "tavrin " TAVRIN_VERSION_STRING, "Print the version");
  app.failure_message(tavrin::tool::MistakeMessage);
  tavrin::tool::SetHelpForm(&app);
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
  tavrin::tool::AddCheck(&app, &status);
  tavrin::tool::AddEncipher(&app);
  tavrin::tool::AddDecipher(&app);
  tavrin::tool::AddShow(&app, &status);
  tavrin::tool::AddDiff(&app, &status);
  tavrin::tool::AddGet(&app, &status);
  tavrin::tool::AddSet(&app, &status);
  tavrin::tool::AddKeys(&app);
  tavrin::tool::AddTemplate(&app);
  tavrin::tool::AddHelp(&app);
  if (argc > 1 && argv[1] == std::string_view(tavrin::tool::kComplete)) {
    tavrin::tool::PrintText(tavrin::tool::Completions(app, {argv + 2, argv + argc}));
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

int main(int argc, char** argv) {
  try {
    return static_cast<int>(Run(argc, argv));
  } catch (const std::exception& error) {
    return static_cast<int>(tavrin::tool::ReportFailure(error));
  }
}
