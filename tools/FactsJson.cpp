#include "FactsJson.h"

#include <nlohmann/json.hpp>

#include "TextForms.h"

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
  for (const ModeFacts& mode : facts.modes) {
    modes.push_back({{"index", modes.size()},
                     {"number", mode.number},
                     {"sliceUm", mode.sliceUm},
                     {"firstValue", mode.firstValue},
                     {"secondValue", mode.secondValue},
                     {"layers", OrNull(mode.layers)},
                     {"limited", mode.limited},
                     {"continuousLimit", OrNull(mode.continuousLimit)}});
  }
  return modes;
}

Json SupportOf(const PrinterFacts& facts) {
  Json sides = Json::array();
  for (const SideSupportFacts& side : facts.sideSupport) {
    sides.push_back({{"modelHeightUm", side.modelHeightUm}, {"thicknessUm", side.thicknessUm}});
  }
  return {{"topThicknessUm", facts.topSupportUm},
          {"sideThicknesses", sides},
          {"detachLayerUm", facts.detachLayerUm},
          {"sizeCode", facts.supportSizeCode}};
}

Json MachineOf(const PrinterFacts& facts) {
  return {{"smoothing", facts.smoothing},
          {"feedBiDirection", facts.feedBiDirection},
          {"wrapReduction", facts.wrapReduction},
          {"autoCleaning", facts.autoCleaning},
          {"checkNozzleWhilePrinting", facts.nozzleCheck},
          {"headBandMm", facts.headBandMm},
          {"chippingAllowanceSetting", facts.chippingAllowanceSetting}};
}

Json SlotsOf(const PrinterFacts& facts) {
  Json slots = Json::array();
  for (const SlotFacts& slot : facts.slots) {
    slots.push_back({{"number", slot.number},
                     {"colorCode", slot.colorCode},
                     {"inkTypeCode", slot.inkTypeCode},
                     {"inkId", ToUtf8(slot.id)},
                     {"inkName", slot.valid ? Json(ToUtf8(slot.name)) : Json()},
                     {"valid", slot.valid}});
  }
  return slots;
}

Json CategoriesOf(const PrinterFacts& facts) {
  Json categories = Json::array();
  for (const std::vector<std::int32_t>& slots : facts.categories)
    categories.push_back({{"index", categories.size()}, {"slotNumbers", slots}});
  return categories;
}

}  // namespace

std::string FactsAsJson(const PrinterFacts& facts) {
  const Json json = {{"identity",
                      {{"modelName", OrNull(facts.modelName)},
                       {"version", OrNull(facts.version)},
                       {"networkAddress", OrNull(facts.networkAddress)}}},
                     {"buildVolume",
                      {{"widthUm", facts.widthUm},
                       {"depthUm", facts.depthUm},
                       {"heightUm", facts.heightUm},
                       {"printMarginUm", facts.printMarginUm}}},
                     {"printModes", ModesOf(facts)},
                     {"defaultModeNumber", facts.defaultModeNumber},
                     {"support", SupportOf(facts)},
                     {"machine", MachineOf(facts)},
                     {"inkSlots", SlotsOf(facts)},
                     {"inkCategories", CategoriesOf(facts)}};
  return json.dump(2, ' ', true, Json::error_handler_t::replace) + "\n";
}

}  // namespace tavrin::tool
