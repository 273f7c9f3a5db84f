#include <algorithm>
#include <cstdint>
#include <map>
#include <set>
#include <string>

#include "check/Folding.h"
#include "check/Rules.h"

namespace tavrin::tool {

namespace {

std::set<std::int32_t> ModesLeftOut(const Reading& reading) {
  std::set<std::int32_t> modes(reading.modes.begin(), reading.modes.end());
  for (const auto& mode : reading.config->Modes)
    modes.erase(mode->Number);
  return modes;
}

/// Names all that a mode lacks, at the first line that it has.
void NameMissingKeys(const Reading& reading, std::int32_t mode, Finding* cause) {
  std::string others;
  std::size_t line = Folding::kNone;
  for (const char* shape : {"Mode#", "Mode#SliceSize", "Mode#ColorThickness"}) {
    const std::string key = Numbered(shape, mode);
    if (const KeyLine* written = reading.lines.Find(key)) {
      line = std::min(line, written->number);
    } else if (Folded(key) != Folded(cause->key)) {
      others += " and " + key;
    }
  }
  if (line != Folding::kNone) cause->line = line;
  if (others.empty()) return;
  cause->what = "Mode asks for this key" + others + ", which are missing";
  cause->remedy = "write them";
}

}  // namespace

void JoinMissingModeKeys(Folding* folding) {
  std::map<std::int32_t, std::size_t> causes;  // by mode
  for (const std::size_t i : folding->Find([](const Finding&) { return true; })) {
    const Folding::Subject subject = folding->SubjectOf(folding->At(i));
    if (subject.governor == "Mode") causes.emplace(subject.number, i);
  }
  for (const std::int32_t mode : ModesLeftOut(folding->reading)) {
    const auto cause = causes.find(mode);
    if (cause == causes.end()) continue;
    Finding& finding = folding->At(cause->second);
    if (finding.rule == "key-missing") NameMissingKeys(folding->reading, mode, &finding);
    folding->FoldModes(cause->second, {mode});
  }
}

}  // namespace tavrin::tool
