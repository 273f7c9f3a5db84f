#include "facts/HiddenFacts.h"

namespace tavrin::tool {

namespace {

std::vector<std::int32_t> ModesLeftOut(const Reading& reading) {
  std::vector<std::int32_t> leftOut;
  const auto& modes = reading.config->Modes;
  auto mode = modes.begin();
  for (const std::int32_t listed : reading.modes) {
    if (mode != modes.end() && (*mode)->Number == listed) {
      ++mode;
    } else {
      leftOut.push_back(listed);
    }
  }
  return leftOut;
}

std::vector<InkEntryFacts> EntriesOf(const PrinterConfig& config, const InkTable& table,
                                     std::uint32_t (NumberedInkSlot::*code)() const) {
  std::vector<InkEntryFacts> entries;
  for (std::size_t i = 0; i < table.size(); ++i) {
    InkEntryFacts entry = {table[i].code, table[i].name, {}};
    for (const auto& slot : config.InkSlots) {
      const auto named = static_cast<std::int32_t>((*slot.*code)());
      if (slot->IsValid() && table.Find(named) == &table[i])
        entry.slots.push_back(slot->GetSlotNumber());
    }
    entries.push_back(std::move(entry));
  }
  return entries;
}

std::int32_t CountOf(const Reading& reading, const std::string& key) {
  const WatchedRead* count = reading.FindNumber(key);
  return count == nullptr ? 0 : static_cast<std::int32_t>(count->number);
}

bool HasOwnSlots(const Reading& reading) {
  const std::int32_t count = CountOf(reading, "PrinterInkSlotNum");
  for (std::int64_t number = 1; number <= count; ++number) {
    for (const char* key : {"ColorCodeInkSlot", "InkTypeCodeInkSlot"}) {
      if (reading.FindNumber(key + std::to_string(number)) == nullptr) return false;
    }
  }
  return count >= 1;
}

}  // namespace

HiddenFacts TakeHiddenFacts(const Reading& reading) {
  const PrinterConfig& config = *reading.config;
  HiddenFacts facts;
  facts.supportExtend = {config.SupportExtend};
  facts.supportExtendAngle = config.SupportExtendAngle;
  facts.cuttingMarginThickness = {config.CuttingMarginThickness};
  for (const auto& mode : config.Modes)
    facts.colorThicknesses.push_back({mode->ColorThickness});
  facts.modesLeftOut = ModesLeftOut(reading);
  facts.colors = EntriesOf(config, config.Colors, &NumberedInkSlot::ColorCode);
  facts.inkTypes = EntriesOf(config, config.InkTypes, &NumberedInkSlot::InkTypeCode);
  for (const auto& category : config.InkCategories)
    facts.categoryNames.push_back(category->name);
  facts.hasBuiltInColors = CountOf(reading, "NumOfColor") < 1;
  facts.hasBuiltInInkTypes = CountOf(reading, "NumOfInkType") < 1;
  facts.hasBuiltInSlots = !HasOwnSlots(reading);
  return facts;
}

}  // namespace tavrin::tool
