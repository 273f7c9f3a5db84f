#include "commands/FixCommand.h"

#include <algorithm>
#include <filesystem>
#include <sstream>
#include <system_error>
#include <vector>

#include "Failure.h"
#include "TavrinSession.h"
#include "check/DefinitionReading.h"
#include "check/Fix.h"
#include "definition/FileCipher.h"
#include "definition/TemporaryPath.h"
#include "facts/FactsText.h"
#include "files/FilePath.h"
#include "files/TemporaryFile.h"

namespace tavrin::tool {

namespace {

using Lines = std::vector<std::string>;

Bytes Enciphered(Bytes plain) {
  if (!EncryptBuffer(plain.data(), static_cast<std::uint32_t>(plain.size()))) {
    throw Failure("the definition", "the system's cipher refused it",
                  "check that the system offers SHA-1 and RC4");
  }
  return plain;
}

/// What hosts get of a plain definition, each line with the title above it; none when it does not
/// load.
Lines FactsFor(const Bytes& plain) {
  const Bytes bytes = Enciphered(plain);
  TemporaryFile file(ToPath(MakeTemporaryPath("")).parent_path() / "definition.dat");
  if (file.Stream() == nullptr ||
      std::fwrite(bytes.data(), 1, bytes.size(), file.Stream()) != bytes.size() || !file.Close())
    return {"unknown, as no temporary file can be written"};
  Lines facts;
  try {
    const tavrinlib::Session session(ToArgument(file.Path()));
    std::istringstream report(FactsAsText(AskPrinterFacts(session)));
    std::string title;
    for (std::string line; std::getline(report, line);) {
      if (line.empty()) continue;
      if (line.front() != ' ') {
        title = line;
        continue;
      }
      // The width of a table's column follows from its cells.
      std::istringstream words(line);
      std::string fact = title + ':';
      for (std::string word; words >> word;)
        fact += ' ' + word;
      facts.push_back(fact);
    }
  } catch (const tavrinlib::Error&) {
    return {"nothing, as the definition does not load"};
  }
  return facts;
}

std::string Without(Lines lines, const Lines& others, const std::string& prefix) {
  std::string text;
  for (const std::string& line : lines) {
    if (std::find(others.begin(), others.end(), line) == others.end()) text += prefix + line + '\n';
  }
  return text;
}

std::string Describe(const std::string& file, const Bytes& before, const Bytes& after) {
  if (before == after) return {};
  const Lines old = FactsFor(before);
  const Lines now = FactsFor(after);
  const std::string changes = Without(old, now, "before: ") + Without(now, old, "after:  ");
  return DifferenceOf(file, before, after) +
         (changes.empty() ? "The printer gets the same.\n" : "What the printer gets:\n" + changes);
}

std::filesystem::perms PermissionsOf(const std::string& file) {
  using std::filesystem::perms;
  std::error_code error;
  const perms permissions = std::filesystem::status(ToPath(file), error).permissions();
  if (error || (permissions & perms::owner_write) == perms::none)
    throw Failure(file, "is read-only", "make it writable or take --diff");
  return permissions & perms::mask;
}

}  // namespace

DefinitionReading FixInPlace(const std::string& file, const Bytes& definition, std::ostream& out) {
  DefinitionReading before = ReadDefinition(definition);
  const Bytes& plain = before.reading.plain;
  const Fix fix = FollowCertainRemedies(before.reading);
  if (fix.plain == plain) return before;
  const bool isPlain = before.container == Container::Plain;
  WriteFile(file, isPlain ? fix.plain : Enciphered(fix.plain), PermissionsOf(file));
  out << Describe(file, plain, fix.plain);
  return {Reading(fix.plain), before.container};
}

void PreviewFix(const std::string& file, const Reading& reading, std::ostream& out) {
  out << Describe(file, reading.plain, FollowCertainRemedies(reading).plain);
}

}  // namespace tavrin::tool
