#include "check/Rules.h"
#include "keys/KeyFacts.h"

namespace tavrin::tool {

namespace {

void CheckText(const Check& check, const char* key, const std::string& text) {
  if (FactsOf(key).range.Contains(static_cast<double>(text.size()))) return;
  check.Add("long-text", Severity::Error, key,
            "the text has " + std::to_string(text.size()) + " bytes",
            "the query for all three texts of the printer fails",
            "shorten it to " + NumberText(FactsOf(key).range.most) + " bytes");
}

/// Every switch is on at 1, and off at the given value.
void CheckSwitch(const Check& check, const char* key, double off, const std::string& what) {
  const WatchedRead* read = check.reading.FindNumber(key);
  if (read == nullptr || read->number == 1.0 || read->number == off) return;
  check.Warn("switch-value", key, Numbered(what, static_cast<std::int32_t>(read->number)),
             FactsOf(key).Outcome(*check.reading.config, 0),
             Numbered("write 1 for on or # for off", static_cast<std::int32_t>(off)));
}

}  // namespace

void CheckPrinter(const Check& check) {
  const PrinterConfig& config = *check.reading.config;
  CheckText(check, "ModelName", config.ModelName);
  CheckText(check, "Version", config.Version);
  CheckText(check, "IPAddress", config.IPAddress);
  for (const char* key : {"AntiAliasing", "Reverse", "AutoCleaningEnabled", "NCUEnabled"})
    CheckSwitch(check, key, 0.0, "every value but 1 is off, # as well");
  CheckSwitch(check, "White_White", 100.0, "every value but 100 is on, # as well");
}

}  // namespace tavrin::tool
