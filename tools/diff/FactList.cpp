#include "diff/FactList.h"

#include <cmath>
#include <cstdio>
#include <cstdlib>
#include <map>

#include "definition/IntegerConversion.h"
#include "facts/HiddenFacts.h"

namespace tavrin::tool {

namespace {

using Group = Fact::Group;
using Role = Fact::Role;
using Unit = Fact::Unit;

/// As short as it goes and still the same number.
std::string ExactText(double number) {
  char text[40];
  for (int precision = 6; precision <= 17; ++precision) {
    std::snprintf(text, sizeof text, "%.*g", precision, number);
    if (std::strtod(text, nullptr) == number) break;
  }
  return text;
}

std::string LengthText(std::int64_t micrometres) {
  return std::abs(micrometres) < 1000 && micrometres != 0
             ? std::to_string(micrometres) + " um"
             : ExactText(static_cast<double>(micrometres) / 1000.0) + " mm";
}

std::string ListText(const std::vector<std::int64_t>& numbers) {
  std::string text;
  for (const std::int64_t number : numbers)
    text += (text.empty() ? "" : ", ") + std::to_string(number);
  return text.empty() ? "none" : text;
}

/// Quoted where it is not plain where it begins and ends.
std::string TextText(const std::string& text) {
  const bool isPlain =
      !text.empty() && text.front() != ' ' && text.front() != '"' && text.back() != ' ';
  return isPlain ? text : '"' + text + '"';
}

class FactLister {
 public:
  explicit FactLister(const Reading& reading)
      : config_(*reading.config), hidden_(TakeHiddenFacts(reading)) {}

  std::vector<Fact> List() {
    ListIdentity();
    ListBuildVolume();
    ListModes();
    ListSupport();
    ListMachine();
    ListSlots();
    ListCategories();
    ListTable("Colour", "colours", hidden_.colors, hidden_.hasBuiltInColors);
    ListTable("Ink type", "ink types", hidden_.inkTypes, hidden_.hasBuiltInInkTypes);
    return std::move(facts_);
  }

 private:
  Fact& Add(const std::string& field, Fact::Value value, Unit unit = Unit::None) {
    facts_.push_back({group_, item_, field, std::move(value), unit});
    return facts_.back();
  }
  Fact& AddNumber(const std::string& field, std::int64_t value, Unit unit = Unit::None) {
    return Add(field, value, unit);
  }
  Fact& AddLength(const std::string& field, std::int64_t micrometres) {
    return Add(field, micrometres, Unit::Micrometres);
  }
  static void Hide(Fact& fact) { fact.isHandedOut = false; }

  /// Of equal items, as numbers may be listed twice, each has a name of its own.
  void Begin(Group group, const std::string& item = "") {
    group_ = group;
    const int count = item.empty() ? 1 : ++counts_[item];
    item_ = count == 1 ? item : item + " (" + std::to_string(count) + ')';
  }

  void ListIdentity() {
    Begin(Group::Identity);
    bool isAnswered = true;
    const std::pair<const char*, const std::string*> texts[] = {
        {"Model name", &config_.ModelName},
        {"Version", &config_.Version},
        {"Network address", &config_.IPAddress}};
    for (const auto& [field, text] : texts) {
      isAnswered = isAnswered && text->size() <= kLongestIdentity;
      Add(field, *text).isHandedOut = isAnswered;
    }
    Add("Query answered", isAnswered, Unit::YesNo);
  }

  void ListBuildVolume() {
    Begin(Group::BuildVolume);
    const M3DVector& size = config_.PrinterSize;
    AddLength("Width", TruncateToUint32(size.x * kMicrometresPerMillimetre));
    AddLength("Depth", TruncateToUint32(size.y * kMicrometresPerMillimetre));
    AddLength("Height", TruncateToUint32(size.z * kMicrometresPerMillimetre));
    AddLength("Print margin", config_.PrintMargin);
  }

  void ListModes() {
    std::vector<std::int64_t> order;
    for (const auto& mode : config_.Modes) {
      Begin(Group::Modes, "Mode " + std::to_string(mode->Number));
      order.push_back(mode->Number);
      Add("slice", std::int64_t{mode->SliceSize}, Unit::Micrometres);
      AddNumber("first value", mode->FirstValue);
      AddNumber("second value", mode->SecondValue);
      Add("limited", mode->Limited, Unit::YesNo);
      Add("continuous limit", mode->LimitedContinuous == -1
                                  ? Fact::Value()
                                  : Fact::Value(std::int64_t{mode->LimitedContinuous}));
      const std::int32_t layers = config_.LayerCount(*mode);
      Add("layers", layers == INT32_MIN ? Fact::Value() : Fact::Value(std::int64_t{layers})).role =
          Role::Detail;
      Hide(AddLength("colour layer", mode->ColorThickness));
    }
    Begin(Group::Modes);
    Add("Order of modes", order).role = Role::Order;
    AddNumber("Default mode", config_.DefaultMode);
    Hide(Add("Modes left out",
             std::vector<std::int64_t>(hidden_.modesLeftOut.begin(), hidden_.modesLeftOut.end())));
  }

  void ListSupport() {
    Begin(Group::Support);
    AddLength("Top thickness", config_.SupportThickness);
    for (const std::int32_t millimetres : {10, 50, 100}) {
      AddLength("Side thickness at " + std::to_string(millimetres) + " mm",
                config_.SideSupportThickness(millimetres * 1000));
    }
    Hide(AddLength("Support extent", config_.SupportExtend));
    Hide(Add("Support angle", config_.SupportExtendAngle, Unit::Degrees));
    AddLength("Detach layer", config_.DetachLayerSize);
    AddNumber("Size code", config_.SupportSize);
  }

  void ListMachine() {
    Begin(Group::Machine);
    Add("Smoothing", config_.AntiAliasing);
    Add("Bidirectional feed", config_.Reverse);
    Add("Wrap reduction", config_.WhiteWhite);
    Add("Automatic cleaning", config_.AutoCleaningEnabled);
    Add("Nozzle check while printing", config_.NCUEnabled);
    Add("Head band", config_.HeadBandSize, Unit::Millimetres);
    AddNumber("Cutting margin setting", config_.CuttingMarginSetting);
    Hide(AddLength("Cutting margin thickness", config_.CuttingMarginThickness));
  }

  void ListSlots() {
    Begin(Group::Slots);
    AddCause("Slots", hidden_.hasBuiltInSlots);
    for (const auto& slot : config_.InkSlots) {
      Begin(Group::Slots, "Slot " + std::to_string(slot->GetSlotNumber()));
      const auto color = static_cast<std::int32_t>(slot->ColorCode());
      const auto inkType = static_cast<std::int32_t>(slot->InkTypeCode());
      Add("", slot->IsValid() ? config_.Colors.Find(color)->name + " (" +
                                    config_.InkTypes.Find(inkType)->name + ')'
                              : "an unknown ink");
      Add("codes of colour and ink type", std::vector<std::int64_t>{color, inkType}).role =
          Role::Detail;
    }
  }

  void ListCategories() {
    for (const auto& category : config_.InkCategories) {
      std::vector<std::int64_t> numbers;
      for (const NumberedInkSlot* slot : category->slots)
        numbers.push_back(slot->GetSlotNumber());
      Begin(Group::Categories, "Category of " +
                                   std::string(numbers.empty()       ? "no slot"
                                               : numbers.size() == 1 ? "slot "
                                                                     : "slots ") +
                                   (numbers.empty() ? "" : ListText(numbers)));
      Hide(Add("name", category->name));
      Add("slots", numbers).role = Role::Detail;
    }
  }

  void ListTable(const std::string& item, const std::string& plural,
                 const std::vector<InkEntryFacts>& table, bool isBuiltIn) {
    Begin(Group::Tables);
    AddCause("Table of " + plural, isBuiltIn);
    for (const InkEntryFacts& entry : table) {
      Begin(Group::Tables, item + ' ' + std::to_string(entry.code));
      Add("", entry.name).isHandedOut = !entry.slots.empty();
    }
  }

  void AddCause(const std::string& field, bool isBuiltIn) {
    Fact& fact = Add(field, std::string(isBuiltIn ? "the built-in ones" : "the definition's"));
    fact.isHandedOut = false;
    fact.role = Role::Cause;
  }

  static constexpr std::size_t kLongestIdentity = 128;

  const PrinterConfig& config_;
  HiddenFacts hidden_;
  std::vector<Fact> facts_;
  Group group_ = Group::Identity;
  std::string item_;
  std::map<std::string, int> counts_;
};

}  // namespace

const char* TitleOf(Fact::Group group) {
  constexpr const char* kTitles[] = {"Identity", "Build volume", "Print modes",    "Support",
                                     "Machine",  "Ink slots",    "Ink categories", "Ink tables"};
  return kTitles[static_cast<std::size_t>(group)];
}

const char* NameOf(Fact::Group group) {
  constexpr const char* kNames[] = {"identity", "buildVolume", "printModes",    "support",
                                    "machine",  "inkSlots",    "inkCategories", "inkTables"};
  return kNames[static_cast<std::size_t>(group)];
}

const char* NameOf(Fact::Unit unit) {
  constexpr const char* kNames[] = {"", "um", "mm", "degrees", ""};
  return kNames[static_cast<std::size_t>(unit)];
}

std::string TextOf(const Fact::Value& value, Fact::Unit unit) {
  struct Text {
    Unit unit;

    std::string operator()(std::monostate) const { return "none"; }
    std::string operator()(bool isOn) const {
      return unit == Unit::YesNo ? (isOn ? "yes" : "no") : (isOn ? "on" : "off");
    }
    std::string operator()(std::int64_t number) const {
      return unit == Unit::Micrometres ? LengthText(number) : std::to_string(number);
    }
    std::string operator()(double number) const {
      const std::string name = NameOf(unit);
      return ExactText(number + 0.0) + (name.empty() ? "" : ' ' + name);
    }
    std::string operator()(const std::string& text) const { return TextText(text); }
    std::string operator()(const std::vector<std::int64_t>& list) const { return ListText(list); }
  };
  return std::visit(Text{unit}, value);
}

std::vector<Fact> ListFacts(const Reading& reading) {
  return FactLister(reading).List();
}

}  // namespace tavrin::tool
