#include <cstring>
#include <string>

#include "TavrinLib.h"
#include "api/LibraryInstance.h"
#include "definition/IntegerConversion.h"

using namespace tavrin;

namespace {

/// Hands out one field of the configuration, converted to the output's type. Signed values go out
/// modulo 2^32.
template <typename Field, typename Value>
bool QueryField(Field PrinterConfig::*field, Value* value) {
  return Query([&](const PrinterConfig& config) {
    *value = static_cast<Value>(config.*field);
    return true;
  });
}

/// Lets answer read the print mode at index; gives false, recording nothing, when there is none.
template <typename Answer>
bool QueryMode(int32_t index, Answer answer) {
  return Query([&](const PrinterConfig& config) {
    if (index < 0 || static_cast<size_t>(index) >= config.Modes.size()) return false;
    const ModeConfig* mode = config.Modes[static_cast<size_t>(index)].get();
    if (mode == nullptr) return false;
    answer(config, *mode);
    return true;
  });
}

constexpr size_t kInfoFieldBytes = 128;

bool FillInfoField(const std::string& text, char* field) {
  if (text.size() > kInfoFieldBytes) return false;
  std::memset(field, 0, kInfoFieldBytes);
  std::memcpy(field, text.data(), text.size());
  return true;
}

}  // namespace

bool TavrinGetAreaSize(uint32_t* x, uint32_t* y, uint32_t* z) {
  return Query([&](const PrinterConfig& config) {
    *x = TruncateToUint32(config.PrinterSize.x * kMicrometresPerMillimetre);
    *y = TruncateToUint32(config.PrinterSize.y * kMicrometresPerMillimetre);
    *z = TruncateToUint32(config.PrinterSize.z * kMicrometresPerMillimetre);
    return true;
  });
}

bool TavrinGetAreaMarginSize(uint32_t* margin) {
  return QueryField(&PrinterConfig::PrintMargin, margin);
}

bool TavrinGetModeCount(uint32_t* count) {
  *count = 0;
  return Query([&](const PrinterConfig& config) {
    *count = static_cast<uint32_t>(config.Modes.size());
    return true;
  });
}

bool TavrinGetModeConfig(int32_t index, int32_t config[6]) {
  return QueryMode(index, [&](const PrinterConfig& printer, const ModeConfig& mode) {
    config[0] = mode.Number;
    config[1] = mode.SliceSize;
    config[2] = mode.SecondValue;
    config[3] = mode.FirstValue;
    config[4] = printer.LayerCount(mode);
    config[5] = mode.LimitedContinuous;
  });
}

bool TavrinGetTopSupportThickness(uint32_t* thickness) {
  return QueryField(&PrinterConfig::SupportThickness, thickness);
}

bool TavrinGetSideSupportThickness(int32_t modelHeight, uint32_t* thickness) {
  return Query([&](const PrinterConfig& config) {
    *thickness = static_cast<uint32_t>(config.SideSupportThickness(modelHeight));
    return true;
  });
}

bool TavrinGetDetachLayerHeight(uint32_t* height) {
  return QueryField(&PrinterConfig::DetachLayerSize, height);
}

bool TavrinGetSmoothing(bool* enabled) {
  return QueryField(&PrinterConfig::AntiAliasing, enabled);
}

bool TavrinGetFeedBiDirection(bool* enabled) {
  return QueryField(&PrinterConfig::Reverse, enabled);
}

bool TavrinGetWrapReduction(bool* enabled) {
  return QueryField(&PrinterConfig::WhiteWhite, enabled);
}

bool TavrinGetWarpWarning(int32_t index, bool* limited) {
  return QueryMode(index,
                   [&](const PrinterConfig&, const ModeConfig& mode) { *limited = mode.Limited; });
}

bool TavrinGetInfo(char info[384]) {
  return Query([&](const PrinterConfig& config) {
    for (const std::string* text : {&config.ModelName, &config.Version, &config.IPAddress}) {
      if (info == nullptr || !FillInfoField(*text, info)) return Fail(ErrorFailed);
      info += kInfoFieldBytes;
    }
    return true;
  });
}

bool TavrinGetHeadBandSize(double* size) {
  return QueryField(&PrinterConfig::HeadBandSize, size);
}

bool TavrinGetDefaultPrintMode(uint32_t* number) {
  return QueryField(&PrinterConfig::DefaultMode, number);
}

bool TavrinGetChippingAllowance(uint32_t* setting) {
  return QueryField(&PrinterConfig::CuttingMarginSetting, setting);
}

bool TavrinGetSupportSize(uint32_t* size) {
  return QueryField(&PrinterConfig::SupportSize, size);
}

bool TavrinGetAutoCleaning(bool* enabled) {
  return QueryField(&PrinterConfig::AutoCleaningEnabled, enabled);
}

bool TavrinGetCheckNozzleWhilePrinting(bool* enabled) {
  return QueryField(&PrinterConfig::NCUEnabled, enabled);
}
