#include "keys/KeyFacts.h"

#include <algorithm>
#include <cstdio>
#include <memory>
#include <stdexcept>

#include "check/Rules.h"
#include "definition/ValueConversion.h"

namespace tavrin::tool {

namespace {

using Form = KeyFacts::Form;
using Group = KeyFacts::Group;

template <std::string PrinterConfig::*field>
std::string Text(const PrinterConfig& config, std::int32_t /*number*/) {
  return config.*field;
}

template <std::int32_t PrinterConfig::*field>
std::string Length(const PrinterConfig& config, std::int32_t /*number*/) {
  return NumberText(config.*field / 1000.0);
}

template <std::int32_t PrinterConfig::*field>
std::string Integer(const PrinterConfig& config, std::int32_t /*number*/) {
  return std::to_string(config.*field);
}

template <double PrinterConfig::*field>
std::string Number(const PrinterConfig& config, std::int32_t /*number*/) {
  return NumberText(config.*field);
}

template <bool PrinterConfig::*field>
std::string Switch(const PrinterConfig& config, std::int32_t /*number*/) {
  return config.*field ? "1" : "0";
}

std::string WhiteWhite(const PrinterConfig& config, std::int32_t /*number*/) {
  return config.WhiteWhite ? "1" : "100";
}

std::string PrinterSize(const PrinterConfig& config, std::int32_t /*number*/) {
  const M3DVector& size = config.PrinterSize;
  return NumberText(size.x) + ',' + NumberText(size.y) + ',' + NumberText(size.z);
}

template <bool limitedAlone>
std::string ModeNumbers(const PrinterConfig& config, std::int32_t /*number*/) {
  std::string numbers;
  for (const auto& mode : config.Modes) {
    if (limitedAlone && !mode->Limited) continue;
    numbers += (numbers.empty() ? "" : ",") + std::to_string(mode->Number);
  }
  return numbers;
}

template <InkTable InkModel::*table>
std::string EntryCount(const PrinterConfig& config, std::int32_t /*number*/) {
  return std::to_string((config.*table).size());
}

template <InkTable InkModel::*table>
std::string EntryCode(const PrinterConfig& config, std::int32_t number) {
  return std::to_string((config.*table)[static_cast<std::size_t>(number - 1)].code);
}

template <InkTable InkModel::*table>
std::string EntryName(const PrinterConfig& config, std::int32_t number) {
  return (config.*table)[static_cast<std::size_t>(number - 1)].name;
}

std::string SlotCount(const PrinterConfig& config, std::int32_t /*number*/) {
  return std::to_string(config.InkSlots.size());
}

std::string SlotColor(const PrinterConfig& config, std::int32_t number) {
  return std::to_string(config.InkSlots[static_cast<std::size_t>(number - 1)]->ColorCode());
}

std::string SlotInkType(const PrinterConfig& config, std::int32_t number) {
  return std::to_string(config.InkSlots[static_cast<std::size_t>(number - 1)]->InkTypeCode());
}

constexpr Range kAny;
constexpr Range kAboveZero = {0.0, Range::kUnbounded, false};

constexpr Range AtLeast(double least) {
  return {least};
}

constexpr Range AtMost(double most) {
  return {-Range::kUnbounded, most};
}

constexpr char kNoQuery[] = "the query for model name, version and address fails";
constexpr char kCountsAsMissing[] = "the key counts as missing";
constexpr char kModeLeftOut[] = "mode # is left out";
constexpr char kColorLeftOut[] = "colour # is left out";
constexpr char kInkTypeLeftOut[] = "ink type # is left out";
constexpr char kSlotsFallBack[] = "all slots are the 8 built-in ones";

constexpr char kOnOff[] = "1: on, 0: off";

std::vector<KeyFacts> MakeKeyFacts() {
  return {
      {"ModelName", Group::Identity, Form::Text, "text", AtMost(128), kAny, kNoQuery,
       "The model's name.", "Tavrin FC-500", Text<&PrinterConfig::ModelName>},
      {"Version", Group::Identity, Form::Text, "text", AtMost(128), kAny, kNoQuery,
       "The definition's version. The one key that must be there.", "1.0", nullptr,
       "the definition does not load"},
      {"IPAddress", Group::Identity, Form::Text, "text", AtMost(128), kAny, kNoQuery,
       "The printer's network address. The library does not look into it.", "192.0.2.1",
       Text<&PrinterConfig::IPAddress>, nullptr, nullptr, "an empty value is the same as none"},

      {"PrinterSize",
       Group::Dimensions,
       Form::Numbers,
       "mm",
       kAboveZero,
       {10.0, 10000.0},
       "hosts get it modulo 2^32 um",
       "Width, depth and height of the build volume. With fewer than three numbers the key is "
       "ignored; a field that is no number counts as 0, further fields are ignored.",
       "500,480,300",
       PrinterSize,
       nullptr,
       nullptr,
       nullptr,
       3},
      {"PrintMargin",
       Group::Dimensions,
       Form::Length,
       "mm",
       AtLeast(0.0),
       {0.001, 100.0},
       kAsItIs,
       "The margin that stays free at the edges of the build volume. The default is 5 thousandths "
       "of a mm, not 5 mm.",
       "5.0",
       Length<&PrinterConfig::PrintMargin>},
      {"HeadBandSize",
       Group::Dimensions,
       Form::Number,
       "mm",
       kAboveZero,
       {1.0, 1000.0},
       kAsItIs,
       "The width of the band that the print head covers in one pass.",
       "53.7",
       Number<&PrinterConfig::HeadBandSize>},

      {"SupportThickness",
       Group::Support,
       Form::Length,
       "mm",
       AtLeast(0.0),
       {0.01, 20.0},
       kAsItIs,
       "The thickness of the support under a model.",
       "0.15",
       Length<&PrinterConfig::SupportThickness>},
      {"SupportExtend",
       Group::Support,
       Form::Length,
       "mm",
       AtLeast(0.0),
       {0.01, 100.0},
       kAsItIs,
       "How far the support reaches out beside a model.",
       "2.0",
       Length<&PrinterConfig::SupportExtend>},
      {"SupportExtendAngle",
       Group::Support,
       Form::Number,
       "degrees",
       {0.0, 90.0, true, false},
       {0.01, 60.0},
       "below 0 the support does not widen, from 90 on its thickness makes no sense",
       "The angle at which the support beside a model widens with the model's height; at 0 it does "
       "not.",
       "2.0",
       Number<&PrinterConfig::SupportExtendAngle>},
      {"SupportSizeSetting",
       Group::Support,
       Form::Integer,
       "size code",
       {-2.0, 6.0},
       kAny,
       kAsItIs,
       "The support size code, from smallest to largest. The default follows from SupportExtend "
       "and SupportExtendAngle; a code that is given does not.",
       "2",
       Integer<&PrinterConfig::SupportSize>,
       nullptr,
       nullptr,
       "a code that stands here no longer follows them"},
      {"DetachLayerSize",
       Group::Support,
       Form::Length,
       "mm",
       AtLeast(0.0),
       {0.01, 100.0},
       kAsItIs,
       "The height of the layer that detaches a model from the build plate.",
       "3.5",
       Length<&PrinterConfig::DetachLayerSize>},

      {"AntiAliasing", Group::Switches, Form::Switch, kOnOff, kAny, kAny, nullptr,
       "Whether edges are smoothed.", "1", Switch<&PrinterConfig::AntiAliasing>},
      {"Reverse", Group::Switches, Form::Switch, kOnOff, kAny, kAny, nullptr,
       "Whether the printer prints in both directions of the feed.", "1",
       Switch<&PrinterConfig::Reverse>},
      {"White_White", Group::Switches, Form::Switch, "1: on, 100: off", kAny, kAny, nullptr,
       "Whether wrap reduction is on, which it is at every number but 100, 0 included.", "1",
       WhiteWhite},
      {"AutoCleaningEnabled", Group::Switches, Form::Switch, kOnOff, kAny, kAny, nullptr,
       "Whether the printer cleans its heads by itself.", "1",
       Switch<&PrinterConfig::AutoCleaningEnabled>},
      {"NCUEnabled", Group::Switches, Form::Switch, kOnOff, kAny, kAny, nullptr,
       "Whether the nozzles are checked while printing.", "1", Switch<&PrinterConfig::NCUEnabled>},

      {"CuttingMarginSetting", Group::CuttingMargin, Form::Integer, "setting number", AtLeast(0.0),
       kAny, kAsItIs,
       "The number of the cutting margin setting, which is that of the thickness key that is read; "
       "0: no cutting margin.",
       "2", Integer<&PrinterConfig::CuttingMarginSetting>},
      {"CuttingMarginThickness#",
       Group::CuttingMargin,
       Form::Length,
       "mm",
       AtLeast(0.0),
       {0.01, 100.0},
       kAsItIs,
       "The thickness that goes with the setting of its number.",
       "0.4",
       Length<&PrinterConfig::CuttingMarginThickness>,
       nullptr,
       "CuttingMarginSetting",
       "only the key of the setting chosen above is read"},

      {"Mode", Group::Modes, Form::Integers, "print mode", kAny, kAny, nullptr,
       "The numbers of the modes, in the order in which a host offers them. A field that is no "
       "number is left out; a number listed twice gives two modes.",
       "1,2", ModeNumbers<false>},
      {"DefaultMode", Group::Modes, Form::Integer, "mode number", kAny, kAny, nullptr,
       "The number of the mode to offer first, one of those in Mode.", "2",
       Integer<&PrinterConfig::DefaultMode>},
      {"LimitationMode", Group::Modes, Form::Integers, "limited mode", kAny, kAny, nullptr,
       "The modes before which a host warns of warping, out of those in Mode.", "2",
       ModeNumbers<true>},
      {"Mode#", Group::Modes, Form::Integers, "integer", AtLeast(0.0), kAny, kAsItIs,
       "The mode's pair of values, passed on as they are; further fields are ignored.", "600,2",
       nullptr, kModeLeftOut, "Mode", nullptr, 2},
      {"Mode#SliceSize",
       Group::Modes,
       Form::Length,
       "mm",
       AtLeast(0.001),
       {0.001, 1.0},
       "hosts get a number of layers that makes no sense",
       "The height of a slice.",
       "0.032",
       nullptr,
       kModeLeftOut,
       "Mode"},
      {"Mode#ColorThickness",
       Group::Modes,
       Form::Length,
       "mm",
       AtLeast(0.0),
       {0.01, 20.0},
       kAsItIs,
       "The thickness of the colour layer.",
       "0.5",
       nullptr,
       kModeLeftOut,
       "Mode"},
      {"Mode#LimitedContinuous", Group::Modes, Form::Integer, "limit", AtLeast(-1.0), kAny, kAsItIs,
       "How long the mode may run on when it is a limited one; -1: without a limit.", "10", nullptr,
       "mode # runs on without a limit", "Mode"},

      {"NumOfColor", Group::Inks, Form::Integer, "count", AtLeast(1.0), kAny, kCountsAsMissing,
       "How many colours there are. Entries beyond the count are not read, and one that lacks its "
       "code or its name is left out.",
       "8", EntryCount<&InkModel::Colors>, "the colours are the built-in ones"},
      {"Color#Code", Group::Inks, Form::Integer, "code", kAny, kAny, nullptr,
       "What slots name the colour by; differs from the others in its last three digits. 56 is "
       "support material.",
       "1", EntryCode<&InkModel::Colors>, kColorLeftOut, "NumOfColor"},
      {"Color#Name", Group::Inks, Form::Text, "text", kAny, kAny, nullptr, "The colour's name.",
       "Cyan", EntryName<&InkModel::Colors>, kColorLeftOut, "NumOfColor"},
      {"NumOfInkType", Group::Inks, Form::Integer, "count", AtLeast(1.0), kAny, kCountsAsMissing,
       "How many ink types there are. Entries beyond the count are not read, and one that lacks "
       "its code or its name is left out.",
       "3", EntryCount<&InkModel::InkTypes>, "the ink types are the built-in ones"},
      {"InkType#Code", Group::Inks, Form::Integer, "code", kAny, kAny, nullptr,
       "What slots name the ink type by; differs from the others in its last three digits.", "113",
       EntryCode<&InkModel::InkTypes>, kInkTypeLeftOut, "NumOfInkType"},
      {"InkType#Name", Group::Inks, Form::Text, "text", kAny, kAny, nullptr, "The ink type's name.",
       "KP-300", EntryName<&InkModel::InkTypes>, kInkTypeLeftOut, "NumOfInkType"},
      {"PrinterInkSlotNum", Group::Inks, Form::Integer, "count", AtLeast(1.0), kAny,
       kCountsAsMissing,
       "How many ink slots the printer has. If one of them lacks a code, all are the built-in "
       "ones.",
       "8", SlotCount, kSlotsFallBack},
      {"ColorCodeInkSlot#", Group::Inks, Form::Integer, "code", kAny, kAny, nullptr,
       "The colour in the slot, by its code in the table of colours.", "56", SlotColor,
       kSlotsFallBack, "PrinterInkSlotNum"},
      {"InkTypeCodeInkSlot#", Group::Inks, Form::Integer, "code", kAny, kAny, nullptr,
       "The ink type in the slot, by its code in the table of ink types.", "114", SlotInkType,
       kSlotsFallBack, "PrinterInkSlotNum"},
  };
}

std::string WithDecimals(const std::string& length) {
  double number = 0.0;
  ParseDouble(length, &number);
  char text[32];
  std::snprintf(text, sizeof text, "%.3f mm", number);
  return text;
}

/// What a value as a definition has it says.
std::string Spoken(const KeyFacts& facts, const std::string& value) {
  std::vector<std::string> fields;
  Split(value, &fields);
  switch (facts.form) {
    case Form::Text:
      return Quoted(value);
    case Form::Switch:
      return value == "1" ? "the switch on" : "the switch off";
    case Form::Integer:
      return value;
    case Form::Integers:
      return fields.empty() ? std::string("no ") + facts.unit + 's'
                            : Counted(fields.size(), facts.unit);
    case Form::Number:
      return value + ' ' + facts.unit;
    case Form::Numbers:
      break;
    case Form::Length:
      return WithDecimals(value);
  }
  std::string sides;
  for (const std::string& field : fields)
    sides += (sides.empty() ? "" : " x ") + field;
  return sides + ' ' + facts.unit;
}

/// A definition that says nothing.
class SilentIni : public IniFile {
 public:
  using IniFile::ReadString;
  bool ReadString(const wchar_t* /*section*/, const wchar_t* /*key*/,
                  std::wstring* value) override {
    value->clear();
    return false;
  }
};

}  // namespace

bool Range::Contains(double number) const {
  return (number > least || (hasLeast && number == least)) &&
         (number < most || (hasMost && number == most));
}

std::string Range::Text() const {
  if (IsUnbounded()) return {};
  const std::string from = NumberText(least);
  const std::string to = (hasMost ? "" : "below ") + NumberText(most);
  if (least == -kUnbounded) return hasMost ? "at most " + to : to;
  if (most == kUnbounded) return hasLeast ? from + " or more" : "above " + from;
  return (hasLeast ? "" : "above ") + from + " to " + to;
}

std::string KeyFacts::Outcome(const PrinterConfig& config, std::int32_t number) const {
  return without != nullptr ? Numbered(without, number)
                            : "the printer gets " + Spoken(*this, value(config, number));
}

const std::vector<KeyFacts>& ListKeyFacts() {
  static const std::vector<KeyFacts> kFacts = MakeKeyFacts();
  return kFacts;
}

const KeyFacts& FactsOf(const std::string& shape) {
  const auto& keys = ListKeyFacts();
  const auto found = std::find_if(keys.begin(), keys.end(),
                                  [&](const KeyFacts& facts) { return facts.shape == shape; });
  if (found == keys.end()) throw std::logic_error("nothing is known of the key " + shape);
  return *found;
}

const PrinterConfig& BuiltInPrinter() {
  static const auto kPrinter = [] {
    auto printer = std::make_unique<PrinterConfig>();
    printer->Version = "?";  // nothing is parsed without one
    SilentIni ini;
    printer->ParseOpened(ini);
    return printer;
  }();
  return *kPrinter;
}

std::string NumberText(double number) {
  char text[32];
  std::snprintf(text, sizeof text, "%.10g", number);
  return text;
}

}  // namespace tavrin::tool
