#include <algorithm>
#include <cstdint>
#include <limits>
#include <set>
#include <string>

#include "check/JudgedKeys.h"
#include "check/Rules.h"

namespace tavrin::tool {

namespace {

constexpr char kNoSuchMode[] = "the printer has no mode #";

bool HasMode(const Check& check, std::int32_t number) {
  const auto& modes = check.reading.config->Modes;
  return std::any_of(modes.begin(), modes.end(),
                     [number](const auto& mode) { return mode->Number == number; });
}

/// The number of the default mode counts for nothing while there are no modes and no such key.
void CheckDefaultMode(const Check& check) {
  const std::int32_t number = check.reading.config->DefaultMode;
  const bool isWritten = check.reading.lines.Find("DefaultMode") != nullptr;
  if ((check.reading.config->Modes.empty() && !isWritten) || HasMode(check, number)) return;
  check
      .Add("unknown-default-mode", check.reading.LineOf(isWritten ? "DefaultMode" : "Mode"),
           Severity::Warning, "DefaultMode", Numbered(kNoSuchMode, number),
           "the default is a mode that no host finds", "name one of the modes")
      .missingMode = number;
}

}  // namespace

void CheckModes(const Check& check) {
  CheckDefaultMode(check);
  for (const std::int32_t number : check.reading.limitationModes) {
    if (HasMode(check, number)) continue;
    check
        .Warn("unknown-limited-mode", "LimitationMode", Numbered(kNoSuchMode, number),
              "the number has no effect", "name one of the modes")
        .missingMode = number;
  }
  std::set<std::int32_t> seen;
  for (const std::int32_t number : check.reading.modes) {
    if (seen.insert(number).second) continue;
    check.Warn("mode-twice", "Mode", Numbered("mode # is listed again", number),
               HasMode(check, number) ? "the printer gets it once more" : "it is left out again",
               "list each mode once");
  }
  const JudgedKeys judged(check);
  for (const auto& mode : check.reading.config->Modes) {
    // What is out of range is said of lengths of every kind.
    const bool isOutOfRange = mode->SliceSize == std::numeric_limits<std::int32_t>::min();
    if (mode->SliceSize > 0 || isOutOfRange || seen.erase(mode->Number) == 0) continue;
    const std::string key = Numbered("Mode#SliceSize", mode->Number);
    if (judged.Contains(key)) continue;
    check.Warn("no-slice", key,
               check.reading.FindNumber(key)->number == 0.0 ? "the slice is 0"
               : mode->SliceSize == 0 ? "the slice is cut to whole um, which leaves 0"
                                      : "the slice is negative",
               "the number of layers makes no sense", "write 0.001 (mm) or more");
  }
}

}  // namespace tavrin::tool
