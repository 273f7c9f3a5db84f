#include "definition/PrinterSection.h"

#include "definition/IntegerConversion.h"
#include "definition/PrinterKeys.h"
#include "definition/ValueConversion.h"

namespace tavrin {

namespace {

bool ReadIdentity(IniFile& ini, PrinterConfig* config) {
  if (!ini.ReadString(kPrinterSection, "ModelName", &config->ModelName) &&
      config->ModelName.empty())
    return false;
  if (!ini.ReadString(kPrinterSection, "Version", &config->Version) && config->Version.empty())
    return false;
  ini.ReadString(kPrinterSection, "IPAddress", &config->IPAddress);
  return true;
}

void ReadPrinterSize(IniFile& ini, M3DVector* size) {
  std::vector<std::string> fields;
  if (!ReadList(ini, "PrinterSize", &fields) || fields.size() < 3) return;
  // A field that is no number counts as 0, and the key is taken all the same.
  *size = M3DVector();
  ParseField(fields[0], &size->x);
  ParseField(fields[1], &size->y);
  ParseField(fields[2], &size->z);
}

void ReadDimensions(IniFile& ini, PrinterConfig* config) {
  ReadPrinterSize(ini, &config->PrinterSize);
  ReadMicrometres(ini, "PrintMargin", &config->PrintMargin);

  std::string text;
  if (ini.ReadString(kPrinterSection, "HeadBandSize", &text))
    ParseField(text, &config->HeadBandSize);
  if (ini.ReadString(kPrinterSection, "DefaultMode", &text)) ParseField(text, &config->DefaultMode);
}

/// The size code that belongs to a support extent in µm and an angle in thousandths of a degree.
std::int32_t SupportSizeOf(std::int32_t extend, std::int32_t angle) {
  struct Row {
    std::int32_t extend, angle, size;
  };
  static constexpr Row kRows[] = {
      {1000, 1000, -2}, {1000, 1500, -1}, {1500, 1500, 0}, {2000, 1500, 1}, {2000, 2000, 2},
      {2500, 2000, 3},  {3000, 2000, 4},  {3500, 2000, 5}, {4000, 2000, 6},
  };
  for (const Row& row : kRows) {
    if (row.extend == extend && row.angle == angle) return row.size;
  }
  return 0;
}

void ReadSupport(IniFile& ini, PrinterConfig* config) {
  ReadMicrometres(ini, "SupportThickness", &config->SupportThickness);
  ReadMicrometres(ini, "SupportExtend", &config->SupportExtend);
  ini.ReadDouble(kPrinterSection, "SupportExtendAngle", &config->SupportExtendAngle);
  if (ini.ReadInt(kPrinterSection, "SupportSizeSetting", &config->SupportSize)) return;
  config->SupportSize =
      SupportSizeOf(config->SupportExtend, TruncateToInt32(config->SupportExtendAngle * 1000.0));
}

void ReadSwitch(IniFile& ini, const char* key, bool* field) {
  std::int32_t value = 0;
  if (ini.ReadInt(kPrinterSection, key, &value)) *field = value == 1;
}

void ReadSwitches(IniFile& ini, PrinterConfig* config) {
  ReadSwitch(ini, "AntiAliasing", &config->AntiAliasing);
  ReadSwitch(ini, "Reverse", &config->Reverse);
  std::int32_t whiteWhite = 0;
  // Intended: every value but 100 sets the flag, 0 included.
  if (ini.ReadInt(kPrinterSection, "White_White", &whiteWhite))
    config->WhiteWhite = whiteWhite != 100;
  ReadSwitch(ini, "AutoCleaningEnabled", &config->AutoCleaningEnabled);
  ReadSwitch(ini, "NCUEnabled", &config->NCUEnabled);
}

void ReadCuttingMargin(IniFile& ini, PrinterConfig* config) {
  if (!ini.ReadInt(kPrinterSection, "CuttingMarginSetting", &config->CuttingMarginSetting)) return;
  if (config->CuttingMarginSetting == 0) {
    config->CuttingMarginThickness = 0;
    return;
  }
  ReadMicrometres(ini, "CuttingMarginThickness" + IntToString(config->CuttingMarginSetting),
                  &config->CuttingMarginThickness);
}

}  // namespace

bool ReadPrinterSection(IniFile& ini, PrinterConfig* config) {
  if (!ReadIdentity(ini, config)) return false;
  ReadDimensions(ini, config);
  ReadSupport(ini, config);
  ReadMicrometres(ini, "DetachLayerSize", &config->DetachLayerSize);
  ReadSwitches(ini, config);
  ReadCuttingMargin(ini, config);
  return true;
}

}  // namespace tavrin
