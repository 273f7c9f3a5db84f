#include "commands/ShowCommand.h"

#include <chrono>
#include <memory>
#include <string>

#include "Failure.h"
#include "TavrinSession.h"
#include "commands/CommandLine.h"
#include "commands/LoadFailure.h"
#include "facts/FactsJson.h"
#include "facts/FactsText.h"
#include "files/FileTransfer.h"

namespace tavrin::tool {

namespace {

tavrinlib::Session Load(const std::string& definition) {
  const auto start = std::chrono::steady_clock::now();
  try {
    return tavrinlib::Session(definition);
  } catch (const tavrinlib::Error&) {
    throw ExplainLoadFailure(definition, std::chrono::duration_cast<std::chrono::milliseconds>(
                                             std::chrono::steady_clock::now() - start));
  }
}

void Show(const std::string& definition, bool asJson) {
  const PrinterFacts facts = AskPrinterFacts(Load(definition));
  PrintText(asJson ? FactsAsJson(facts) : FactsAsText(facts));
  if (!facts.HasIdentity()) {
    throw Failure(definition, PrinterFacts::kNoIdentity, "shorten it in the INI file",
                  ExitStatus::Errors);
  }
}

}  // namespace

void AddShow(CLI::App* app) {
  struct Options {
    std::string definition;
    std::string format = "text";
  };
  const auto options = std::make_shared<Options>();
  CLI::App* command = app->add_subcommand("show", "Print what a printer definition says");
  command->add_option("DEFINITION", options->definition, "The printer definition")->required();
  AddChoice(command, "--format", &options->format, {"text", "json"},
            "Text for people or JSON for programs");
  command->footer(
      "Prints every answer that a host gets from the library, defaults included.\n"
      "docs/show-json.md describes the JSON.\n\n"
      "Example: tavrin show printer.dat\n"
      "         tavrin show --format=json printer.dat");
  command->callback([options] { Show(options->definition, options->format == "json"); });
}

}  // namespace tavrin::tool
