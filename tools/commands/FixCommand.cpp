#include "commands/FixCommand.h"

#include <filesystem>
#include <system_error>

#include "Failure.h"
#include "check/DefinitionReading.h"
#include "check/Fix.h"
#include "commands/Ciphering.h"
#include "definition/FileCipher.h"
#include "diff/FactChanges.h"
#include "files/FilePath.h"

namespace tavrin::tool {

namespace {

std::string Describe(const std::string& file, const Reading& before, const Reading& after) {
  if (before.plain == after.plain) return {};
  return DifferenceOf(file, before.plain, after.plain) + OutcomeAsText(before, after);
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
  const Bytes fixed = FollowCertainRemedies(before.reading);
  if (fixed == before.reading.plain) return before;
  DefinitionReading after = {Reading(fixed), before.container};
  const bool isPlain = before.container == Container::Plain;
  WriteFile(file, isPlain ? fixed : Ciphered(file, fixed, EncryptBuffer), PermissionsOf(file));
  out << Describe(file, before.reading, after.reading);
  return after;
}

void PreviewFix(const std::string& file, const Reading& reading, std::ostream& out) {
  out << Describe(file, reading, Reading(FollowCertainRemedies(reading)));
}

}  // namespace tavrin::tool
