#include "commands/EncipherCommand.h"

#include <algorithm>
#include <cstddef>
#include <filesystem>
#include <memory>
#include <string>
#include <utility>

#include "Failure.h"
#include "check/Container.h"
#include "check/Rules.h"
#include "commands/Ciphering.h"
#include "definition/FileCipher.h"
#include "files/FilePath.h"
#include "files/FileTransfer.h"
#include "files/StandardStreams.h"

namespace tavrin::tool {

namespace {

/// Says how much there is to look at in a definition that is enciphered all the same.
void TellFindings(const std::string& ini, const Findings& findings) {
  const auto count = static_cast<std::size_t>(
      std::count_if(findings.begin(), findings.end(),
                    [](const Finding& finding) { return finding.severity > Severity::Note; }));
  if (count == 0 || !IsTerminal()) return;
  PrintText(ini + ": " + Counted(count, "finding") + " that tavrin check tells\n");
}

/// Refuses a definition that no printer could use: one that is enciphered, or that does not load.
/// What shows no definition at all passes, so that a damaged file can be turned back and forth.
///
/// @return what there is to find in one that loads.
Findings CheckPlain(const std::string& ini, const Bytes& bytes) {
  const auto container = ContainerOf(bytes);
  if (container == Container::Enciphered) {
    throw Failure(ini, "is enciphered already",
                  "name the plain file first, or --force enciphers it once more",
                  ExitStatus::Errors);
  }
  if (container != Container::Plain) return {};
  const Reading reading(bytes);
  Findings findings = FindAll(reading);
  if (reading.loads) return findings;
  std::string cause;
  for (const Finding& finding : findings) {
    if (finding.severity != Severity::Error) continue;
    cause = ": line " + std::to_string(finding.line) + ": " + Printable(finding.key) + ": " +
            Printable(finding.what);
    break;
  }
  throw Failure(ini, "would not load" + cause,
                "tavrin check tells more, --force enciphers it all the same", ExitStatus::Errors);
}

/// The permissions of a new definition. Its owner can always change it again, because a file that
/// is read-only cannot be replaced.
std::filesystem::perms PermissionsLike(const std::string& ini) {
  using std::filesystem::perms;
  if (ini == kStandardStream) return perms::owner_read | perms::owner_write;
  std::error_code error;
  return std::filesystem::status(ToPath(ini), error).permissions() | perms::owner_read |
         perms::owner_write;
}

ExitStatus Encipher(const std::string& ini, const std::string& definition, bool isForced) {
  CheckTransfer(ini, definition);
  Bytes bytes = ReadInput(ini);
  const std::string name = NameOfInput(ini);
  const Findings findings = isForced ? Findings() : CheckPlain(name, bytes);
  WriteOutput(definition, Ciphered(name, std::move(bytes), EncryptBuffer), PermissionsLike(ini));
  if (definition != kStandardStream) TellFindings(name, findings);
  return ExitStatus::NothingToReport;
}

}  // namespace

Command EncipherCommand() {
  struct Options {
    std::string ini;
    std::string definition;
    bool isForced = false;
  };
  const auto options = std::make_shared<Options>();
  return {
      "encipher",
      "Make a printer definition from an INI file",
      {Required("INI", &options->ini, "The plain INI file; - is standard input"),
       Required("DEFINITION", &options->definition,
                "The printer definition to write; - is standard output"),
       {"--force", &options->isForced,
        "Encipher also what is enciphered already or would not load"}},
      "A new definition gets the INI file's permissions; one that is replaced keeps its own, and\n"
      "one that is read-only is not replaced. A new one made of standard input can be read by its\n"
      "owner alone. What is refused or empty leaves the definition as it was. On a terminal, what\n"
      "tavrin check would tell is counted.\n\n"
      "Example: tavrin encipher printer.ini printer.dat\n"
      "         tavrin decipher old.dat - | sed s/Cyan/Blue/ | tavrin encipher - new.dat",
      [options] { return Encipher(options->ini, options->definition, options->isForced); }};
}

}  // namespace tavrin::tool
