#include "facts/FactsJson.h"

#include <nlohmann/json.hpp>

#include "files/TextForms.h"

namespace tavrin::tool {

namespace {

using Json = nlohmann::ordered_json;

Json OrNull(std::optional<std::int32_t> number) {
  return number ? Json(*number) : Json();
}

Json OrNull(const std::optional<std::string>& text) {
  return text ? Json(ToUtf8(*text)) : Json();
}

Json ModesOf(const PrinterFacts& facts) {
  Json modes = Json::array();
  for (const tavrinlib::PrintMode& mode : facts.modes) {
    modes.push_back({{"index", modes.size()},
                     {"number", mode.number},
                     {"sliceUm", mode.sliceHeight.count},
                     {"firstValue", mode.firstValue},
                     {"secondValue", mode.secondValue},
                     {"layers", OrNull(mode.sliceCount)},
                     {"limited", mode.limited},
                     {"continuousLimit", OrNull(mode.limitedContinuous)}});
  }
  return modes;
}

Json SupportOf(const PrinterFacts& facts) {
  Json sides = Json::array();
  for (const SideSupportFacts& side : facts.sideSupport) {
    sides.push_back(
        {{"modelHeightUm", side.modelHeight.count}, {"thicknessUm", side.thickness.count}});
  }
  return {{"topThicknessUm", facts.topSupport.count},
          {"sideThicknesses", sides},
          {"detachLayerUm", facts.detachLayer.count},
          {"sizeCode", facts.supportSizeCode}};
}

Json MachineOf(const PrinterFacts& facts) {
  return {{"smoothing", facts.smoothing},
          {"feedBiDirection", facts.feedBiDirection},
          {"wrapReduction", facts.wrapReduction},
          {"autoCleaning", facts.autoCleaning},
          {"checkNozzleWhilePrinting", facts.nozzleCheck},
          {"headBandMm", facts.headBand.count},
          {"chippingAllowanceSetting", facts.chippingAllowanceSetting}};
}

Json SlotsOf(const PrinterFacts& facts) {
  Json slots = Json::array();
  for (const tavrinlib::Slot& slot : facts.slots) {
    slots.push_back({{"number", slot.number},
                     {"colorCode", slot.colorCode},
                     {"inkTypeCode", slot.inkTypeCode},
                     {"inkId", ToUtf8(slot.inkId)},
                     {"inkName", slot.valid ? Json(ToUtf8(slot.inkName)) : Json()},
                     {"valid", slot.valid}});
  }
  return slots;
}

Json CategoriesOf(const PrinterFacts& facts) {
  Json categories = Json::array();
  for (const tavrinlib::Category& slots : facts.categories)
    categories.push_back({{"index", categories.size()}, {"slotNumbers", slots}});
  return categories;
}

Json TableOf(const std::vector<InkEntryFacts>& table, bool isBuiltIn) {
  Json entries = Json::array();
  for (const InkEntryFacts& entry : table) {
    entries.push_back(
        {{"code", entry.code}, {"name", ToUtf8(entry.name)}, {"slotNumbers", entry.slots}});
  }
  return {{"builtIn", isBuiltIn}, {"entries", entries}};
}

Json HiddenOf(const DefinitionFacts& facts) {
  const HiddenFacts& hidden = facts.hidden;
  Json thicknesses = Json::array();
  for (const tavrinlib::Micrometres thickness : hidden.colorThicknesses)
    thicknesses.push_back(thickness.count);
  Json names = Json::array();
  for (const std::string& name : hidden.categoryNames)
    names.push_back(ToUtf8(name));
  return {{"supportExtendUm", hidden.supportExtend.count},
          {"supportExtendAngleDegrees", hidden.supportExtendAngle},
          {"cuttingMarginThicknessUm", hidden.cuttingMarginThickness.count},
          {"colorThicknessesUm", thicknesses},
          {"modesLeftOut", hidden.modesLeftOut},
          {"colors", TableOf(hidden.colors, hidden.hasBuiltInColors)},
          {"inkTypes", TableOf(hidden.inkTypes, hidden.hasBuiltInInkTypes)},
          {"builtInSlots", hidden.hasBuiltInSlots},
          {"categoryNames", names}};
}

Json JsonOf(const DefinitionFacts& definition, bool withHidden) {
  const PrinterFacts& facts = definition.printer;
  Json json = {{"identity",
                {{"modelName", OrNull(facts.modelName)},
                 {"version", OrNull(facts.version)},
                 {"networkAddress", OrNull(facts.networkAddress)}}},
               {"buildVolume",
                {{"widthUm", facts.widthUm},
                 {"depthUm", facts.depthUm},
                 {"heightUm", facts.heightUm},
                 {"printMarginUm", facts.printMargin.count}}},
               {"printModes", ModesOf(facts)},
               {"defaultModeNumber", facts.defaultModeNumber},
               {"support", SupportOf(facts)},
               {"machine", MachineOf(facts)},
               {"inkSlots", SlotsOf(facts)},
               {"inkCategories", CategoriesOf(facts)}};
  if (withHidden) json["notHandedOut"] = HiddenOf(definition);
  return json;
}

std::string Dump(const Json& json) {
  return json.dump(2, ' ', true, Json::error_handler_t::replace) + "\n";
}

}  // namespace

std::string FactsAsJson(const DefinitionFacts& facts, bool withHidden) {
  return Dump(JsonOf(facts, withHidden));
}

std::string FactsAsJson(const std::vector<DefinitionFacts>& definitions, bool withHidden) {
  Json array = Json::array();
  for (const DefinitionFacts& facts : definitions) {
    Json json = {{"file", ToUtf8(facts.file)}};
    json.update(JsonOf(facts, withHidden));
    array.push_back(json);
  }
  return Dump(array);
}

}  // namespace tavrin::tool
