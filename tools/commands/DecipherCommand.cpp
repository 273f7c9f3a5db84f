#include "commands/DecipherCommand.h"

#include <filesystem>
#include <memory>
#include <string>
#include <utility>

#include "Failure.h"
#include "check/Container.h"
#include "commands/Ciphering.h"
#include "definition/FileCipher.h"
#include "files/FileTransfer.h"

namespace tavrin::tool {

namespace {

constexpr std::filesystem::perms kOwnerOnly =
    std::filesystem::perms::owner_read | std::filesystem::perms::owner_write;

/// The cipher is its own reverse, so that a plain file would come out enciphered.
void CheckEnciphered(const std::string& definition, const Bytes& bytes) {
  if (ContainerOf(bytes) != Container::Plain) return;
  throw Failure(definition, "is plain already",
                "name the enciphered file first, or --force puts it through the cipher",
                ExitStatus::Errors);
}

ExitStatus Decipher(const std::string& definition, const std::string& ini, bool isForced) {
  CheckTransfer(definition, ini);
  Bytes bytes = ReadInput(definition);
  const std::string name = NameOfInput(definition);
  if (!isForced) CheckEnciphered(name, bytes);
  WriteOutput(ini, Ciphered(name, std::move(bytes), DecryptBuffer), kOwnerOnly);
  return ExitStatus::NothingToReport;
}

}  // namespace

Command DecipherCommand() {
  struct Options {
    std::string definition;
    std::string ini = kStandardStream;
    bool isForced = false;
  };
  const auto options = std::make_shared<Options>();
  return {
      "decipher",
      "Turn a printer definition into an INI file",
      {Required("DEFINITION", &options->definition, "The printer definition; - is standard input"),
       {"INI", &options->ini, "The INI file to write; standard output without it or with -"},
       {"--force", &options->isForced, "Put also a plain file through the cipher"}},
      "A new INI file can be read by its owner alone; one that is replaced keeps its permissions,\n"
      "and one that is read-only is not replaced.\n\n"
      "Example: tavrin decipher printer.dat printer.ini",
      [options] { return Decipher(options->definition, options->ini, options->isForced); }};
}

}  // namespace tavrin::tool
