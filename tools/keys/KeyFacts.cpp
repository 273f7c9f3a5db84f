#include "keys/KeyFacts.h"

#include <algorithm>
#include <cstdio>
#include <iterator>
#include <stdexcept>

#include "check/Rules.h"

namespace tavrin::tool {

namespace {

using Form = KeyFacts::Form;

std::string General(double number) {
  char text[32];
  std::snprintf(text, sizeof text, "%g", number);
  return text;
}

template <std::string PrinterConfig::*field>
std::string Text(const PrinterConfig& config) {
  return Quoted(config.*field);
}

template <std::int32_t PrinterConfig::*field>
std::string Length(const PrinterConfig& config) {
  char text[32];
  std::snprintf(text, sizeof text, "%.3f mm", config.*field / 1000.0);
  return text;
}

template <std::int32_t PrinterConfig::*field>
std::string Integer(const PrinterConfig& config) {
  return std::to_string(config.*field);
}

template <bool PrinterConfig::*field>
std::string Switch(const PrinterConfig& config) {
  return config.*field ? "the switch on" : "the switch off";
}

std::string PrinterSize(const PrinterConfig& config) {
  const M3DVector& size = config.PrinterSize;
  return General(size.x) + " x " + General(size.y) + " x " + General(size.z) + " mm";
}

std::string HeadBand(const PrinterConfig& config) {
  return General(config.HeadBandSize) + " mm";
}

std::string Angle(const PrinterConfig& config) {
  return General(config.SupportExtendAngle) + " degrees";
}

std::string ModeCount(const PrinterConfig& config) {
  return Counted(config.Modes.size(), "print mode");
}

std::string LimitedCount(const PrinterConfig& config) {
  const auto count = std::count_if(config.Modes.begin(), config.Modes.end(),
                                   [](const auto& mode) { return mode->Limited; });
  return Counted(static_cast<std::size_t>(count), "limited mode");
}

constexpr char kModeLeftOut[] = "mode # is left out";
constexpr char kColorLeftOut[] = "colour # is left out";
constexpr char kInkTypeLeftOut[] = "ink type # is left out";
constexpr char kSlotsFallBack[] = "all slots are the 8 built-in ones";

const KeyFacts kKeys[] = {
    {"ModelName", nullptr, Text<&PrinterConfig::ModelName>},
    {"Version", nullptr, Text<&PrinterConfig::Version>},
    {"IPAddress", nullptr, Text<&PrinterConfig::IPAddress>},
    {"PrinterSize", nullptr, PrinterSize, nullptr, Form::Numbers, 3},
    {"PrintMargin", nullptr, Length<&PrinterConfig::PrintMargin>},
    {"HeadBandSize", nullptr, HeadBand, nullptr, Form::Number},
    {"DefaultMode", nullptr, Integer<&PrinterConfig::DefaultMode>, nullptr, Form::Integer},
    {"SupportThickness", nullptr, Length<&PrinterConfig::SupportThickness>},
    {"SupportExtend", nullptr, Length<&PrinterConfig::SupportExtend>},
    {"SupportExtendAngle", nullptr, Angle},
    {"SupportSizeSetting", nullptr, Integer<&PrinterConfig::SupportSize>},
    {"DetachLayerSize", nullptr, Length<&PrinterConfig::DetachLayerSize>},
    {"AntiAliasing", nullptr, Switch<&PrinterConfig::AntiAliasing>},
    {"Reverse", nullptr, Switch<&PrinterConfig::Reverse>},
    {"White_White", nullptr, Switch<&PrinterConfig::WhiteWhite>},
    {"AutoCleaningEnabled", nullptr, Switch<&PrinterConfig::AutoCleaningEnabled>},
    {"NCUEnabled", nullptr, Switch<&PrinterConfig::NCUEnabled>},
    {"CuttingMarginSetting", nullptr, Integer<&PrinterConfig::CuttingMarginSetting>},
    {"CuttingMarginThickness#", nullptr, Length<&PrinterConfig::CuttingMarginThickness>,
     "CuttingMarginSetting"},
    {"Mode", nullptr, ModeCount, nullptr, Form::Integers},
    {"LimitationMode", nullptr, LimitedCount, nullptr, Form::Integers},
    {"Mode#SliceSize", kModeLeftOut, nullptr, "Mode"},
    {"Mode#ColorThickness", kModeLeftOut, nullptr, "Mode"},
    {"Mode#", kModeLeftOut, nullptr, "Mode", Form::Integers, 2},
    {"Mode#LimitedContinuous", "mode # runs on without a limit", nullptr, "Mode"},
    {"NumOfColor", "the colours are the built-in ones", nullptr},
    {"Color#Code", kColorLeftOut, nullptr, "NumOfColor"},
    {"Color#Name", kColorLeftOut, nullptr, "NumOfColor"},
    {"NumOfInkType", "the ink types are the built-in ones", nullptr},
    {"InkType#Code", kInkTypeLeftOut, nullptr, "NumOfInkType"},
    {"InkType#Name", kInkTypeLeftOut, nullptr, "NumOfInkType"},
    {"PrinterInkSlotNum", kSlotsFallBack, nullptr},
    {"ColorCodeInkSlot#", kSlotsFallBack, nullptr, "PrinterInkSlotNum"},
    {"InkTypeCodeInkSlot#", kSlotsFallBack, nullptr, "PrinterInkSlotNum"},
};

}  // namespace

std::string KeyFacts::Outcome(const PrinterConfig& config, std::int32_t number) const {
  return without != nullptr ? Numbered(without, number) : "the printer gets " + value(config);
}

const KeyFacts& FactsOf(const std::string& shape) {
  const auto found = std::find_if(std::begin(kKeys), std::end(kKeys),
                                  [&](const KeyFacts& facts) { return facts.shape == shape; });
  if (found == std::end(kKeys)) throw std::logic_error("nothing is known of the key " + shape);
  return *found;
}

}  // namespace tavrin::tool
