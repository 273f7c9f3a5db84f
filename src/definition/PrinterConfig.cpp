#include "definition/PrinterConfig.h"

#include <cmath>
#include <limits>

#include "definition/FileCipher.h"
#include "definition/IniSnapshot.h"
#include "definition/InkSection.h"
#include "definition/IntegerConversion.h"
#include "definition/PrintModes.h"
#include "definition/PrinterSection.h"
#include "definition/TemporaryPath.h"
#include "definition/TextConversion.h"

namespace tavrin {

bool PrinterConfig::Load(const std::string& path) {
  Definition = std::make_unique<FileLoader>();
  if (!Definition->LoadFromFile(path)) return false;
  if (!DecryptBuffer(Definition->Data(), Definition->Size())) return false;

  platform::PlainCopy copy(MakeTemporaryPath(path));
  return Definition->SaveToFile(&copy) && Parse(copy);
}

bool PrinterConfig::Parse(const std::string& path) {
  IniSnapshot ini(WideCopy(path));
  return ini.Exists() && ParseOpened(ini);
}

bool PrinterConfig::Parse(const platform::PlainCopy& copy) {
  IniSnapshot ini(copy);
  return ParseOpened(ini);
}

bool PrinterConfig::ParseOpened(IniFile& ini) {
  if (!ReadPrinterSection(ini, this)) return false;
  ReadModes(ini, this);
  ReadColors(ini, this);
  ReadInkTypes(ini, this);
  if (ReadInkSlots(ini, this)) {
    BuildInkCategories();
  } else {
    BuildDefaultInkCategories();
  }
  return true;
}

std::int32_t PrinterConfig::LayerCount(const ModeConfig& mode) const {
  if (mode.SliceSize == 0) return std::numeric_limits<std::int32_t>::min();
  return TruncateToInt32(static_cast<double>(ToMicrometres(PrinterSize.z)) / mode.SliceSize);
}

std::int32_t PrinterConfig::SideSupportThickness(std::int32_t modelHeight) const {
  if (modelHeight < 1) return 0;
  if (!(SupportExtendAngle > 0.0)) return SupportExtend;
  constexpr double kPi = 3.141592653589793;
  const std::int32_t height =
      WrappingAdd(WrappingAdd(DetachLayerSize, SupportThickness), modelHeight);
  const double growth = std::tan(SupportExtendAngle * kPi / 180.0) * height;
  return WrappingAdd(SupportExtend, TruncateToInt32(growth));
}

}  // namespace tavrin
