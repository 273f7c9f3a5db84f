#include "commands/ShowCommand.h"

#include <algorithm>
#include <memory>
#include <string>
#include <vector>

#include "Failure.h"
#include "facts/FactsJson.h"
#include "facts/FactsText.h"
#include "files/FileTransfer.h"
#include "files/TextForms.h"
#include "sheet/DataSheet.h"

namespace tavrin::tool {

namespace {

struct ShowOptions {
  std::vector<std::string> files;
  std::string format = "text";
  bool showsAll = false;
};

std::string AsText(const std::vector<DefinitionFacts>& definitions, const ShowOptions& options) {
  std::string text;
  for (const DefinitionFacts& facts : definitions) {
    if (options.files.size() > 1)
      text += (text.empty() ? "" : "\n") + ("== " + Printable(NameOfInput(facts.file)) + " ==\n\n");
    text += options.showsAll ? AllFactsAsText(facts) : FactsAsText(facts.printer);
  }
  return text;
}

std::string AsJson(const std::vector<DefinitionFacts>& definitions, const ShowOptions& options) {
  return options.files.size() == 1 ? FactsAsJson(definitions.front(), options.showsAll)
                                   : FactsAsJson(definitions, options.showsAll);
}

void Print(const std::vector<DefinitionFacts>& definitions, const ShowOptions& options) {
  if (options.format == "html") {
    const std::string page = DataSheets(definitions, options.showsAll);
    WriteStandardOutput(Bytes(page.begin(), page.end()));
  } else {
    PrintText(options.format == "json" ? AsJson(definitions, options)
                                       : AsText(definitions, options));
  }
}

ExitStatus Show(const ShowOptions& options) {
  CheckInputs(options.files);
  ExitStatus status = ExitStatus::NothingToReport;
  std::vector<DefinitionFacts> definitions;
  for (const std::string& file : options.files) {
    try {
      definitions.push_back(LoadFacts(file));
    } catch (const std::exception& error) {
      status = std::max(status, ReportFailure(error));
    }
  }
  const bool isArray = options.format == "json" && options.files.size() > 1;
  if (isArray || !definitions.empty()) Print(definitions, options);
  for (const DefinitionFacts& facts : definitions) {
    if (facts.printer.HasIdentity()) continue;
    const Failure failure(NameOfInput(facts.file), PrinterFacts::kNoIdentity,
                          "shorten it in the INI file", ExitStatus::Errors);
    status = std::max(status, ReportFailure(failure));
  }
  return status;
}

}  // namespace

Command ShowCommand() {
  const auto options = std::make_shared<ShowOptions>();
  return {
      "show",
      "Print what a printer definition says",
      {Required("FILE", &options->files,
                "Printer definitions, enciphered or as plain INI files; - is standard input"),
       Choice("--format", &options->format, {"text", "json", "html"},
              "Text for people, JSON for programs, or a data sheet to look at or print"),
       {"--all", &options->showsAll, "Print also what the library reads and hands out to no host"}},
      "Prints every answer that a host gets from the library, defaults included.\n"
      "docs/show-json.md describes the JSON. The data sheet is one HTML file that needs no "
      "other.\n\n"
      "Example: tavrin show printer.dat\n"
      "         tavrin show --all printer.ini\n"
      "         tavrin show --format=json printer.dat\n"
      "         tavrin show --format=html printer.dat > printer.html",
      [options] { return Show(*options); }};
}

}  // namespace tavrin::tool
