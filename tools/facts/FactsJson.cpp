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
                       {"printMarginUm", facts.printMargin.count}}},
                     {"printModes", ModesOf(facts)},
                     {"defaultModeNumber", facts.defaultModeNumber},
                     {"support", SupportOf(facts)},
                     {"machine", MachineOf(facts)},
                     {"inkSlots", SlotsOf(facts)},
                     {"inkCategories", CategoriesOf(facts)}};
  return json.dump(2, ' ', true, Json::error_handler_t::replace) + "\n";
}

}  // namespace tavrin::tool
