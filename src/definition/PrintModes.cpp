#include "definition/PrintModes.h"

#include <algorithm>

#include "definition/PrinterKeys.h"
#include "definition/ValueConversion.h"

namespace tavrin {

namespace {

bool ReadNumbers(IniFile& ini, const std::string& key, std::vector<std::int32_t>* numbers) {
  numbers->clear();
  std::vector<std::string> fields;
  if (!ReadList(ini, key, &fields)) return false;
  for (const std::string& field : fields) {
    std::int32_t number = 0;
    if (ParseField(field, &number)) numbers->push_back(number);
  }
  return !numbers->empty();
}

/// Reads the keys of mode->Number.
///
/// @return false when one that a mode must have is missing.
bool ReadMode(IniFile& ini, ModeConfig* mode) {
  const std::string prefix = "Mode" + IntToString(mode->Number);
  if (!ReadMicrometres(ini, prefix + "SliceSize", &mode->SliceSize)) return false;
  if (!ReadMicrometres(ini, prefix + "ColorThickness", &mode->ColorThickness)) return false;
  if (!ReadModePair(ini, prefix, &mode->FirstValue, &mode->SecondValue)) return false;
  ini.ReadInt(kPrinterSection, prefix + "LimitedContinuous", &mode->LimitedContinuous);
  return true;
}

}  // namespace

bool ReadModeList(IniFile& ini, std::vector<std::int32_t>* numbers) {
  return ReadNumbers(ini, "Mode", numbers);
}

bool ReadLimitationModeList(IniFile& ini, std::vector<std::int32_t>* numbers) {
  return ReadNumbers(ini, "LimitationMode", numbers);
}

bool ReadModePair(IniFile& ini, const std::string& key, std::int32_t* first, std::int32_t* second) {
  std::vector<std::string> fields;
  if (!ReadList(ini, key, &fields) || fields.size() < 2) return false;
  return ParseField(fields[0], first) && ParseField(fields[1], second);
}

bool ReadModes(IniFile& ini, PrinterConfig* config) {
  std::vector<std::int32_t> numbers;
  if (!ReadModeList(ini, &numbers)) return false;
  std::vector<std::int32_t> limited;
  ReadLimitationModeList(ini, &limited);

  config->Modes.clear();
  for (const std::int32_t number : numbers) {
    auto mode = std::make_unique<ModeConfig>();
    mode->Number = number;
    mode->Limited = std::find(limited.begin(), limited.end(), number) != limited.end();
    if (ReadMode(ini, mode.get())) config->Modes.push_back(std::move(mode));
  }
  return !config->Modes.empty();
}

}  // namespace tavrin
