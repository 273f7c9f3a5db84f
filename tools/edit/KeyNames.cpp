#include "edit/KeyNames.h"

#include <cstdint>
#include <vector>

#include "Spelling.h"
#include "check/Rules.h"
#include "definition/ValueConversion.h"

namespace tavrin::tool {

namespace {

/// Of the keys with the number of the name, or else with the first.
std::string NearestKey(const Reading& reading, const std::string& name) {
  std::int32_t number = 1;
  const std::size_t digits = name.find_first_of("0123456789");
  if (digits != std::string::npos) ParseInt(name.substr(digits), &number);
  std::vector<std::string> folded;
  for (const KnownKey& known : reading.knownKeys)
    folded.push_back(Folded(known.WithNumber(number)));
  const std::string nearest = NearestName(Folded(name), folded);
  for (const KnownKey& known : reading.knownKeys) {
    if (Folded(known.WithNumber(number)) == nearest) return known.WithNumber(number);
  }
  return {};
}

}  // namespace

Failure UnknownKey(const Reading& reading, const std::string& name, const std::string& remedy) {
  const std::string nearest = NearestKey(reading, name);
  return {Quoted(name),
          "nothing reads a key of this name" +
              (nearest.empty() ? std::string() : ", did you mean " + nearest + '?'),
          remedy, ExitStatus::Usage};
}

}  // namespace tavrin::tool
