#include "bench/PrinterByHand.h"

#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <map>
#include <stdexcept>
#include <utility>

namespace tavrin::bench {

namespace {

using Ink = PrinterByHand::Ink;

constexpr std::int32_t kSupportColor = 56;

bool Read(const KeysByHand& keys, const std::string& key, std::string* text) {
  const char* value = keys.Find(key);
  if (value != nullptr) *text = value;
  return value != nullptr;
}

/// @param end receives the place behind the number, for the next one of a list.
bool ToNumber(const char* text, double* number, char** end) {
  const double value = std::strtod(text, end);
  if (*end == text) return false;
  *number = value;
  return true;
}

bool ToNumber(const char* text, std::int32_t* number, char** end) {
  const long value = std::strtol(text, end, 10);
  if (*end == text) return false;
  *number = static_cast<std::int32_t>(value);
  return true;
}

template <typename Number>
bool Read(const KeysByHand& keys, const std::string& key, Number* number) {
  const char* value = keys.Find(key);
  char* end = nullptr;
  return value != nullptr && ToNumber(value, number, &end);
}

bool ReadMicrometres(const KeysByHand& keys, const std::string& key, std::int32_t* length) {
  double millimetres = 0.0;
  if (!Read(keys, key, &millimetres)) return false;
  *length = static_cast<std::int32_t>(millimetres * 1000.0);
  return true;
}

void ReadSwitch(const KeysByHand& keys, const std::string& key, bool* isOn) {
  std::int32_t number = 0;
  if (Read(keys, key, &number)) *isOn = number == 1;
}

/// The numbers of a comma-separated list.
template <typename Number>
std::vector<Number> ReadList(const KeysByHand& keys, const std::string& key) {
  std::vector<Number> numbers;
  const char* text = keys.Find(key);
  Number number = 0;
  for (char* end = nullptr; text != nullptr && ToNumber(text, &number, &end);) {
    numbers.push_back(number);
    text = *end == ',' ? end + 1 : nullptr;
  }
  return numbers;
}

void ReadSupport(const KeysByHand& keys, PrinterByHand* printer) {
  static constexpr std::int32_t kSizes[][3] = {{1000, 1000, -2}, {1000, 1500, -1}, {1500, 1500, 0},
                                               {2000, 1500, 1},  {2000, 2000, 2},  {2500, 2000, 3},
                                               {3000, 2000, 4},  {3500, 2000, 5},  {4000, 2000, 6}};
  ReadMicrometres(keys, "SupportThickness", &printer->supportThickness);
  ReadMicrometres(keys, "SupportExtend", &printer->supportExtend);
  Read(keys, "SupportExtendAngle", &printer->supportAngle);
  if (Read(keys, "SupportSizeSetting", &printer->supportSize)) return;
  const auto angle = static_cast<std::int32_t>(printer->supportAngle * 1000.0);
  for (const auto& [extend, degrees, size] : kSizes) {
    if (extend == printer->supportExtend && degrees == angle) printer->supportSize = size;
  }
}

void ReadSwitches(const KeysByHand& keys, PrinterByHand* printer) {
  std::int32_t whiteWhite = 0;
  ReadSwitch(keys, "AntiAliasing", &printer->antiAliasing);
  ReadSwitch(keys, "Reverse", &printer->reverse);
  if (Read(keys, "White_White", &whiteWhite)) printer->whiteWhite = whiteWhite != 100;
  ReadSwitch(keys, "AutoCleaningEnabled", &printer->autoCleaning);
  ReadSwitch(keys, "NCUEnabled", &printer->nozzleCheck);
}

void ReadSingleValues(const KeysByHand& keys, PrinterByHand* printer) {
  Read(keys, "ModelName", &printer->modelName);
  if (!Read(keys, "Version", &printer->version)) throw std::runtime_error("no version");
  Read(keys, "IPAddress", &printer->address);
  const std::vector<double> size = ReadList<double>(keys, "PrinterSize");
  if (size.size() >= 3) std::copy_n(size.begin(), 3, printer->size);
  ReadMicrometres(keys, "PrintMargin", &printer->margin);
  Read(keys, "HeadBandSize", &printer->headBandSize);
  Read(keys, "DefaultMode", &printer->defaultMode);
  ReadSupport(keys, printer);
  ReadMicrometres(keys, "DetachLayerSize", &printer->detachLayer);
  ReadSwitches(keys, printer);
  if (Read(keys, "CuttingMarginSetting", &printer->cuttingMarginSetting)) {
    ReadMicrometres(keys, "CuttingMarginThickness" + std::to_string(printer->cuttingMarginSetting),
                    &printer->cuttingMargin);
  }
}

void ReadModes(const KeysByHand& keys, PrinterByHand* printer) {
  const auto limited = ReadList<std::int32_t>(keys, "LimitationMode");
  for (const std::int32_t number : ReadList<std::int32_t>(keys, "Mode")) {
    const std::string prefix = "Mode" + std::to_string(number);
    PrinterByHand::Mode mode = {};
    mode.number = number;
    mode.limitedContinuous = -1;
    mode.isLimited = std::find(limited.begin(), limited.end(), number) != limited.end();
    const auto pair = ReadList<std::int32_t>(keys, prefix);
    if (!ReadMicrometres(keys, prefix + "SliceSize", &mode.sliceSize) ||
        !ReadMicrometres(keys, prefix + "ColorThickness", &mode.colorThickness) || pair.size() < 2)
      continue;
    mode.first = pair[0];
    mode.second = pair[1];
    Read(keys, prefix + "LimitedContinuous", &mode.limitedContinuous);
    printer->modes.push_back(mode);
  }
}

/// The entries of a table; the built-in ones where the definition has no count.
std::vector<Ink> ReadInks(const KeysByHand& keys, const char* countKey, const char* prefix,
                          std::vector<Ink> builtIn) {
  std::int32_t count = 0;
  if (!Read(keys, countKey, &count) || count < 1) return builtIn;
  std::vector<Ink> inks;
  for (std::int32_t index = 1; index <= count; ++index) {
    char entry[32];
    std::snprintf(entry, sizeof entry, "%s%03d", prefix, index);
    Ink ink;
    if (Read(keys, std::string(entry) + "Code", &ink.code) &&
        Read(keys, std::string(entry) + "Name", &ink.name))
      inks.push_back(ink);
  }
  return inks;
}

using InksByCode = std::map<std::int32_t, const Ink*>;

InksByCode ByCode(const std::vector<Ink>& inks) {
  InksByCode byCode;
  for (const Ink& ink : inks)
    byCode.emplace(ink.code, &ink);
  return byCode;
}

/// The colour and ink type of each slot; the built-in ones where a slot is not complete.
std::vector<std::pair<std::int32_t, std::int32_t>> ReadSlotCodes(const KeysByHand& keys,
                                                                 bool* isComplete) {
  std::vector<std::pair<std::int32_t, std::int32_t>> codes;
  std::int32_t count = 0;
  *isComplete = Read(keys, "PrinterInkSlotNum", &count) && count >= 1;
  for (std::int32_t number = 1; number <= count && *isComplete; ++number) {
    const std::string suffix = "CodeInkSlot" + std::to_string(number);
    std::pair<std::int32_t, std::int32_t> slot;
    *isComplete =
        Read(keys, "Color" + suffix, &slot.first) && Read(keys, "InkType" + suffix, &slot.second);
    codes.push_back(slot);
  }
  if (*isComplete) return codes;
  return {{56, 114}, {56, 114}, {24, 113}, {15, 113}, {1, 113}, {2, 113}, {3, 113}, {4, 113}};
}

/// A slot whose colour or ink type is unknown has no name.
void ReadSlots(const KeysByHand& keys, PrinterByHand* printer, bool* areTheDefinitions) {
  const InksByCode colors = ByCode(printer->colors);
  const InksByCode inkTypes = ByCode(printer->inkTypes);
  for (const auto& [colorCode, inkTypeCode] : ReadSlotCodes(keys, areTheDefinitions)) {
    const auto color = colors.find(colorCode);
    const auto inkType = inkTypes.find(inkTypeCode);
    const bool isKnown = color != colors.end() && inkType != inkTypes.end();
    printer->slots.push_back(
        {colorCode, inkTypeCode,
         isKnown ? inkType->second->name + ' ' + color->second->name : std::string()});
  }
}

/// The numbers of the slots that belong.
template <typename Belongs>
std::vector<std::int32_t> SlotsThat(const PrinterByHand& printer, Belongs belongs) {
  std::vector<std::int32_t> numbers;
  std::int32_t number = 0;
  for (const auto& slot : printer.slots) {
    ++number;
    if (belongs(slot)) numbers.push_back(number);
  }
  return numbers;
}

void AddCategoryOfEachInk(PrinterByHand* printer) {
  std::map<std::pair<std::int32_t, std::int32_t>, std::size_t> places;
  std::int32_t number = 0;
  for (const auto& slot : printer->slots) {
    const auto [place, isNew] =
        places.emplace(std::pair(slot.inkTypeCode, slot.colorCode), printer->categories.size());
    if (isNew) printer->categories.push_back({slot.name, {}});
    printer->categories[place->second].slots.push_back(++number);
  }
}

void AddBuiltInCategories(PrinterByHand* printer) {
  const auto add = [&](const char* name, std::int32_t firstColor, std::int32_t lastColor) {
    printer->categories.push_back({name, SlotsThat(*printer, [&](const auto& slot) {
                                     return slot.colorCode >= firstColor &&
                                            slot.colorCode <= lastColor;
                                   })});
  };
  add("Support", kSupportColor, kSupportColor);
  add("Clear", 24, 24);
  add("White", 15, 15);
  add("Color", 1, 4);
}

void AddTotals(PrinterByHand* printer) {
  printer->categories.push_back({"[Total] Model Ink", SlotsThat(*printer, [](const auto& slot) {
                                   return slot.colorCode != kSupportColor;
                                 })});
  printer->categories.push_back({"[Total] All Ink", SlotsThat(*printer, [](const auto& slot) {
                                   return !slot.name.empty();
                                 })});
}

}  // namespace

PrinterByHand ReadByHand(const KeysByHand& keys) {
  PrinterByHand printer;
  ReadSingleValues(keys, &printer);
  ReadModes(keys, &printer);
  printer.colors = ReadInks(keys, "NumOfColor", "Color",
                            {{1, "Cyan"},
                             {2, "Magenta"},
                             {3, "Yellow"},
                             {4, "Black"},
                             {15, "White"},
                             {24, "Clear"},
                             {56, "Support"},
                             {57, "Pure Clear"}});
  printer.inkTypes = ReadInks(keys, "NumOfInkType", "InkType",
                              {{113, "KP-300"}, {114, "LX-300"}, {134, "KP-310"}});
  bool areTheDefinitions = false;
  ReadSlots(keys, &printer, &areTheDefinitions);
  if (areTheDefinitions) {
    AddCategoryOfEachInk(&printer);
  } else {
    AddBuiltInCategories(&printer);
  }
  AddTotals(&printer);
  return printer;
}

}  // namespace tavrin::bench
