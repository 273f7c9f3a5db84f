#include "commands/CheckCommand.h"

#include <algorithm>
#include <exception>
#include <iostream>
#include <map>
#include <memory>

#include "Failure.h"
#include "check/DefinitionReading.h"
#include "check/FindingLimit.h"
#include "check/FindingsOutput.h"
#include "check/Rules.h"
#include "commands/FixCommand.h"
#include "files/FileTransfer.h"
#include "files/StandardStreams.h"

namespace tavrin::tool {

namespace {

constexpr int kFailed = 3;

const std::map<std::string, Severity> kThresholds = {
    {"note", Severity::Note}, {"warning", Severity::Warning}, {"error", Severity::Error}};

struct CheckOptions {
  std::vector<std::string> files;
  std::string threshold = "warning";
  bool quiet = false;
  std::string color = "auto";
  std::string format = "text";
  bool fix = false;
  bool diff = false;
};

Findings CheckFile(const std::string& file, const CheckOptions& options) {
  if (options.fix && file == "-")
    throw Failure("standard input", "cannot be changed in place", "name a file or take --diff");
  const Bytes definition = file == "-" ? ReadStandardInput() : ReadFile(file);
  // JSON is not to be mixed with it.
  std::ostream& out = options.format == "text" ? std::cout : std::cerr;
  if (options.fix) return FindAll(FixInPlace(file, definition, out));
  const Reading reading = ReadDefinition(definition);
  if (options.diff) PreviewFix(file, reading, out);
  return FindAll(reading);
}

/// @return the exit status.
int CheckFiles(const CheckOptions& options) {
  const Severity threshold = kThresholds.at(options.threshold);
  const bool asJson = options.format == "json";
  const bool inColor =
      options.color == "always" || (options.color == "auto" && PrepareTerminalColors());
  auto objects = nlohmann::ordered_json::array();
  int status = 0;
  for (const std::string& file : options.files) {
    try {
      for (const Finding& finding : LimitFindings(CheckFile(file, options), threshold)) {
        status = std::max(status, static_cast<int>(finding.severity));
        if (asJson) objects.push_back(ToJson(file, finding));
        if (!asJson && !options.quiet && !options.diff)
          PrintFinding(file, finding, inColor, std::cout);
      }
    } catch (const std::exception& error) {
      ReportFailure(error);
      status = kFailed;
    }
  }
  if (asJson && !options.quiet)
    std::cout << objects.dump(2, ' ', false, nlohmann::ordered_json::error_handler_t::replace)
              << '\n';
  if (!std::cout.flush()) {
    throw Failure("standard output", "cannot be written", "check where it leads to");
  }
  return status;
}

}  // namespace

void AddCheck(CLI::App* app, int* status) {
  const auto options = std::make_shared<CheckOptions>();
  CLI::App* command = app->add_subcommand(
      "check", "Tell what the library makes of definitions, and what in them goes wrong");
  command
      ->add_option("FILE", options->files,
                   "Plain INI files or printer definitions, in any mix; - is standard input")
      ->required();
  command
      ->add_option("--threshold", options->threshold,
                   "The least severity that is reported and counts: note, warning or error; "
                   "warning without it")
      ->check(CLI::IsMember({"note", "warning", "error"}).description(""));
  command->add_flag("--quiet", options->quiet, "Print no findings; the exit status tells");
  command
      ->add_option("--color", options->color,
                   "Whether severities are coloured: auto, always or never; auto, for terminals "
                   "only, without it")
      ->check(CLI::IsMember({"auto", "always", "never"}).description(""));
  command->add_option("--format", options->format, "text or json; text without it")
      ->check(CLI::IsMember({"text", "json"}).description(""));
  CLI::Option* fix = command->add_flag(
      "--fix", options->fix,
      "Follow the remedies that are certain, in the files themselves, and print what that changes");
  command
      ->add_flag("--diff", options->diff,
                 "Print what --fix would change, in place of findings; change nothing")
      ->excludes(fix);
  command->footer(
      "A finding is a line file:line: severity: key: what happened, what the printer gets\n"
      "instead, what to do. An error keeps the definition from loading or a query from\n"
      "answering; a warning is something written that has no effect, or a surprising one;\n"
      "a note is a default that is used. A mode or a slot is judged up to its first bad key,\n"
      "where the library stops reading it.\n"
      "Exit status: 0 nothing found, 1 warnings, 2 errors, 3 a file that is empty or cannot be\n"
      "read, or output that cannot be written; 2 also for a mistake in the command line\n\n"
      "Example: tavrin check printer.ini");
  command->callback([options, status] {
    try {
      *status = CheckFiles(*options);
    } catch (const std::exception& error) {
      ReportFailure(error);
      *status = kFailed;
    }
  });
}

}  // namespace tavrin::tool
