#include "commands/CheckCommand.h"

#include <algorithm>
#include <exception>
#include <iostream>
#include <map>
#include <memory>
#include <string>
#include <utility>
#include <vector>

#include "Failure.h"
#include "Spelling.h"
#include "check/DefinitionReading.h"
#include "check/FileReport.h"
#include "check/FindingLimit.h"
#include "check/Ignores.h"
#include "check/RuleList.h"
#include "check/Rules.h"
#include "commands/FixCommand.h"
#include "files/DefinitionFiles.h"
#include "files/FileTransfer.h"
#include "files/StandardStreams.h"

namespace tavrin::tool {

namespace {

const std::map<std::string, Severity> kThresholds = {
    {"note", Severity::Note}, {"warning", Severity::Warning}, {"error", Severity::Error}};

struct CheckOptions {
  std::vector<std::string> files;
  std::string threshold = "warning";
  std::vector<std::string> ignored;
  std::string container = "any";
  std::string color = "auto";
  std::string format = "text";
  bool isQuiet = false;
  bool fixes = false;
  bool showsDifference = false;
};

void CheckContainer(const Check& check, Container container, const std::string& wanted) {
  const std::string name = NameOf(container);
  check.Add("container", 1, Severity::Note, "container", "the file is " + name,
            container == Container::Plain ? "hosts cannot load it as it is"
                                          : "its deciphered text was judged",
            container == Container::Plain ? "encipher it for them" : "nothing is to be done");
  if (wanted == "any" || wanted == name) return;
  check.Add("wrong-container", 1, Severity::Error, "container",
            "the file is " + name + " and was to be " + wanted,
            container == Container::Plain ? "hosts cannot load it" : "it cannot be edited as it is",
            container == Container::Plain ? "make a definition of it with tavrin encipher"
                                          : "get its text with tavrin decipher");
}

Findings FindingsIn(const DefinitionReading& definition, const CheckOptions& options) {
  Findings findings;
  CheckContainer({definition.reading, &findings}, definition.container, options.container);
  DropIgnored(IgnoredBy(definition.reading.lines), &findings);
  const Findings found = FindAll(definition.reading);
  findings.insert(findings.end(), found.begin(), found.end());
  DropIgnored({options.ignored.begin(), options.ignored.end()}, &findings);
  return LimitFindings(std::move(findings), kThresholds.at(options.threshold));
}

void CheckFile(const std::string& file, const CheckOptions& options, FileReports* reports) {
  FileReport report = {file};
  try {
    if (options.fixes && file == kStandardStream)
      throw Failure("standard input", "cannot be changed in place", "name a file or take --diff");
    const Bytes bytes = ReadInput(file);
    // What programs read is not to be mixed with it.
    std::ostream shown((options.format == "text" ? std::cout : std::cerr).rdbuf());
    std::ostream silent(nullptr);
    std::ostream& out = options.isQuiet ? silent : shown;
    const DefinitionReading definition =
        options.fixes ? FixInPlace(file, bytes, out) : ReadDefinition(bytes);
    if (options.showsDifference) PreviewFix(file, definition.reading, out);
    report.container = definition.container;
    report.findings = FindingsIn(definition, options);
  } catch (const std::exception& error) {
    ReportFailure(error);
    report.failure = error.what();
  }
  reports->push_back(report);
}

void CheckFileOrDirectory(const std::string& file, const CheckOptions& options,
                          FileReports* reports) {
  if (!IsDirectory(file)) {
    CheckFile(file, options, reports);
    return;
  }
  try {
    for (const std::string& listed : ListDefinitions(file))
      CheckFile(listed, options, reports);
  } catch (const std::exception& error) {
    ReportFailure(error);
    reports->push_back({file, {}, error.what()});
  }
}

bool IsColorWanted(const std::string& color) {
  if (color != "auto") return color == "always";
  const bool isUnwanted =
      !EnvironmentValue("NO_COLOR").empty() || EnvironmentValue("TERM") == "dumb";
  return !isUnwanted && PrepareTerminalColors();
}

std::string Output(const FileReports& reports, const CheckOptions& options) {
  if (options.format == "json") return ReportsAsJson(reports);
  if (options.format == "sarif") return ReportsAsSarif(reports);
  if (options.format == "github") return ReportsAsGithub(reports);
  return ReportsAsText(reports, IsColorWanted(options.color)) +
         (IsTerminal() ? SummaryOf(reports) : "");
}

ExitStatus CheckFiles(const CheckOptions& options) {
  FileReports reports;
  for (const std::string& file : options.files)
    CheckFileOrDirectory(file, options, &reports);
  std::cout.flush();
  if (!options.isQuiet && !options.showsDifference) PrintText(Output(reports, options));
  ExitStatus status = ExitStatus::NothingToReport;
  for (const FileReport& report : reports)
    status = std::max(status, report.Status());
  return status;
}

/// What is wrong with an id on the command line; empty when nothing is.
std::string MistakeInId(const std::string& id) {
  if (FindRule(id) != nullptr) return {};
  const std::string nearest = NearestName(id, RuleIds());
  return id + " is no id of a finding" + (nearest.empty() ? "" : ", did you mean " + nearest + '?');
}

}  // namespace

Command CheckCommand() {
  const auto options = std::make_shared<CheckOptions>();
  Argument ignored = {"--ignore", &options->ignored,
                      "Ids of findings that are neither reported nor count"};
  ignored.kind = "ID,...";
  ignored.isCommaSeparated = true;
  ignored.mistakeIn = MistakeInId;
  Argument difference = {"--diff", &options->showsDifference,
                         "Print what --fix would change, in place of findings; change nothing"};
  difference.excluded = {"--fix", "--quiet"};
  return {
      "check",
      "Tell what the library makes of definitions, and what in them goes wrong",
      {Required("FILE", &options->files,
                "Plain INI files and printer definitions, and directories, of which all\n"
                "*.ini and *.dat are checked; - is standard input"),
       Choice("--format", &options->format, {"text", "json", "sarif", "github"}, "What is printed"),
       Choice("--threshold", &options->threshold, {"note", "warning", "error"},
              "The least severity that is reported and counts"),
       ignored,
       Choice("--container", &options->container, {"any", "plain", "enciphered"},
              "What a file must be, or else it is an error"),
       Choice("--color", &options->color, {"auto", "always", "never"},
              "Whether severities are coloured; auto: on a terminal, unless NO_COLOR is\n"
              "set or TERM is dumb"),
       {"--quiet", &options->isQuiet,
        "Print neither findings nor what --fix changes; the exit status tells"},
       {"--fix", &options->fixes,
        "Follow the remedies that are certain, in the files themselves, and print what\n"
        "that changes"},
       difference},
      "A finding is a line file:line:column: severity: key: what happened, what the printer\n"
      "gets instead, what to do [id]. An error keeps the definition from loading or a query\n"
      "from answering; a warning is something written that has no effect, or a surprising one;\n"
      "a note is a default that is used. A mode or a slot is judged up to its first bad key,\n"
      "where the library stops reading it. docs/check.md explains every id and the formats.\n"
      "A comment '; tavrin-check: ignore ID' in a definition silences an id there.\n\n"
      "Example: tavrin check printer.ini\n"
      "         tavrin check --format=sarif definitions > findings.sarif",
      [options] { return CheckFiles(*options); }};
}

}  // namespace tavrin::tool
