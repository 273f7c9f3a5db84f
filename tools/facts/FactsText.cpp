#include "facts/FactsText.h"

#include <algorithm>
#include <cstdio>
#include <map>
#include <sstream>

#include "facts/Report.h"
#include "keys/KeyFacts.h"

namespace tavrin::tool {

namespace {

std::string Millimetres(std::int64_t micrometres) {
  char text[32];
  std::snprintf(text, sizeof text, "%.3f mm", static_cast<double>(micrometres) / 1000.0);
  return text;
}

std::string OnOff(bool enabled) {
  return enabled ? "on" : "off";
}

std::string OrNone(std::optional<std::int32_t> number) {
  return number ? std::to_string(*number) : "none";
}

void ShowIdentity(const PrinterFacts& facts, Report* report) {
  report->Section("Identity");
  report->Value("Model name", facts.modelName.value_or("not handed out"));
  report->Value("Version", facts.version.value_or("not handed out"));
  report->Value("Network address", facts.networkAddress.value_or("not handed out"));
  if (!facts.HasIdentity()) report->Value("Note", PrinterFacts::kNoIdentity);
}

void ShowBuildVolume(const PrinterFacts& facts, Report* report) {
  report->Section("Build volume");
  report->Value("Width", Millimetres(facts.widthUm));
  report->Value("Depth", Millimetres(facts.depthUm));
  report->Value("Height", Millimetres(facts.heightUm));
  report->Value("Print margin", Millimetres(facts.printMargin.count));
}

std::string DefaultMode(const PrinterFacts& facts) {
  const auto& modes = facts.modes;
  const auto mode = std::find_if(modes.begin(), modes.end(), [&](const tavrinlib::PrintMode& m) {
    return m.number == facts.defaultModeNumber;
  });
  return std::to_string(facts.defaultModeNumber) +
         (mode == modes.end() ? " (no mode has it)"
                              : " (index " + std::to_string(mode - modes.begin()) + ")");
}

void ShowModes(const PrinterFacts& facts, Report* report) {
  report->Section("Print modes");
  std::vector<Report::Row> rows;
  for (const tavrinlib::PrintMode& mode : facts.modes) {
    rows.push_back({std::to_string(rows.size()), std::to_string(mode.number),
                    std::to_string(mode.sliceHeight.count), std::to_string(mode.firstValue),
                    std::to_string(mode.secondValue), OrNone(mode.sliceCount),
                    mode.limited ? "yes" : "no", OrNone(mode.limitedContinuous)});
  }
  if (!rows.empty()) {
    report->Table({"Index", "Number", "Slice (um)", "First value", "Second value", "Layers",
                   "Limited", "Continuous limit"},
                  rows);
  }
  report->Value("Number of modes", std::to_string(rows.size()));
  report->Value("Default mode number", DefaultMode(facts));
}

void ShowSupport(const PrinterFacts& facts, Report* report) {
  report->Section("Support");
  report->Value("Top thickness", Millimetres(facts.topSupport.count));
  for (const SideSupportFacts& side : facts.sideSupport) {
    report->Value("Side thickness at " + std::to_string(side.modelHeight.count / 1000) + " mm",
                  Millimetres(side.thickness.count));
  }
  report->Value("Detach layer", Millimetres(facts.detachLayer.count));
  report->Value("Size code (-2 to 6)", std::to_string(facts.supportSizeCode));
}

void ShowMachine(const PrinterFacts& facts, Report* report) {
  report->Section("Machine");
  report->Value("Smoothing", OnOff(facts.smoothing));
  report->Value("Bidirectional feed", OnOff(facts.feedBiDirection));
  report->Value("Wrap reduction", OnOff(facts.wrapReduction));
  report->Value("Automatic cleaning", OnOff(facts.autoCleaning));
  report->Value("Nozzle check while printing", OnOff(facts.nozzleCheck));
  char band[64];
  std::snprintf(band, sizeof band, "%g mm", facts.headBand.count);
  report->Value("Head band", band);
  const std::int32_t setting = facts.chippingAllowanceSetting;
  report->Value("Chipping allowance", setting == 0 ? "none" : "setting " + std::to_string(setting));
}

void ShowSlots(const PrinterFacts& facts, Report* report) {
  report->Section("Ink slots");
  std::vector<Report::Row> rows;
  for (const tavrinlib::Slot& slot : facts.slots) {
    rows.push_back({std::to_string(slot.number), slot.inkId, std::to_string(slot.colorCode),
                    std::to_string(slot.inkTypeCode), slot.valid ? slot.inkName : "(unknown ink)"});
  }
  report->Table({"Slot", "Ink id", "Colour code", "Ink type code", "Ink"}, rows);
}

/// Which slots hold what a code stands for. Names of single colours and ink types are not handed
/// out, only those of whole inks.
void ShowCodes(const PrinterFacts& facts, const char* title, std::int32_t tavrinlib::Slot::*code,
               Report* report) {
  report->Section(title);
  std::map<std::int32_t, std::string> slotsOfCode;
  for (const tavrinlib::Slot& slot : facts.slots) {
    if (!slot.valid) continue;
    std::string& list = slotsOfCode[slot.*code];
    list += (list.empty() ? "" : ", ") + std::to_string(slot.number);
  }
  for (const auto& [value, list] : slotsOfCode)
    report->Value("Code " + std::to_string(value), "slots " + list);
  if (slotsOfCode.empty()) report->Value("None", "no slot is valid");
}

void ShowCategories(const PrinterFacts& facts, Report* report) {
  report->Section("Ink categories");
  const std::size_t count = facts.categories.size();
  for (std::size_t i = 0; i < count; ++i) {
    std::string list;
    for (const std::uint32_t number : facts.categories[i])
      list += (list.empty() ? "slots " : ", ") + std::to_string(number);
    const char* total = i + 1 == count ? ": all ink" : i + 2 == count ? ": model ink" : "";
    report->Value("Category " + std::to_string(i) + total, list.empty() ? "no slots" : list);
  }
}

void ShowPrinter(const PrinterFacts& facts, Report* report) {
  ShowIdentity(facts, report);
  ShowBuildVolume(facts, report);
  ShowModes(facts, report);
  ShowSupport(facts, report);
  ShowMachine(facts, report);
  ShowSlots(facts, report);
  ShowCodes(facts, "Colours in the slots", &tavrinlib::Slot::colorCode, report);
  ShowCodes(facts, "Ink types in the slots", &tavrinlib::Slot::inkTypeCode, report);
  ShowCategories(facts, report);
}

template <typename Number>
std::string Listed(const std::vector<Number>& numbers) {
  std::string list;
  for (const Number number : numbers)
    list += (list.empty() ? "" : ", ") + std::to_string(number);
  return list;
}

void ShowTable(const std::string& title, const std::vector<InkEntryFacts>& table, bool isBuiltIn,
               Report* report) {
  report->Section(title + (isBuiltIn ? ", built in" : ""));
  std::vector<Report::Row> rows;
  for (const InkEntryFacts& entry : table)
    rows.push_back({std::to_string(entry.code), entry.name,
                    entry.slots.empty() ? "none" : Listed(entry.slots)});
  if (rows.empty()) report->Value("None", "the definition's entries are incomplete");
  if (!rows.empty()) report->Table({"Code", "Name", "Slots"}, rows);
}

void ShowHidden(const DefinitionFacts& facts, Report* report) {
  const HiddenFacts& hidden = facts.hidden;
  report->Section("Not handed out to hosts");
  report->Value("Support extent", Millimetres(hidden.supportExtend.count));
  report->Value("Support angle", NumberText(hidden.supportExtendAngle) + " degrees");
  report->Value("Cutting margin thickness", Millimetres(hidden.cuttingMarginThickness.count));
  for (std::size_t i = 0; i < hidden.colorThicknesses.size(); ++i) {
    report->Value("Colour thickness of mode " + std::to_string(facts.printer.modes[i].number),
                  Millimetres(hidden.colorThicknesses[i].count));
  }
  report->Value("Modes left out",
                hidden.modesLeftOut.empty() ? "none" : Listed(hidden.modesLeftOut));
  report->Value("Ink slots", hidden.hasBuiltInSlots ? "built in" : "of the definition");
  for (std::size_t i = 0; i < hidden.categoryNames.size(); ++i)
    report->Value("Name of category " + std::to_string(i), hidden.categoryNames[i]);
  ShowTable("Table of colours", hidden.colors, hidden.hasBuiltInColors, report);
  ShowTable("Table of ink types", hidden.inkTypes, hidden.hasBuiltInInkTypes, report);
}

}  // namespace

std::string FactsAsText(const PrinterFacts& facts) {
  std::ostringstream text;
  Report report(text);
  ShowPrinter(facts, &report);
  return text.str();
}

std::string AllFactsAsText(const DefinitionFacts& facts) {
  std::ostringstream text;
  Report report(text);
  ShowPrinter(facts.printer, &report);
  ShowHidden(facts, &report);
  return text.str();
}

}  // namespace tavrin::tool
