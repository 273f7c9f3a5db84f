#include "sheet/PrinterSections.h"

#include <algorithm>
#include <vector>

#include "keys/KeyFacts.h"
#include "sheet/Drawings.h"
#include "sheet/Elements.h"

namespace tavrin::tool {

namespace {

/// A sample of a line in the curve's drawing.
Html Key(const Html& style, const Html& name) {
  return (name.In("title") +
          Html().In(Html("line class=\"") + style + "\" x1=\"0\" y1=\"4\" x2=\"28\" y2=\"4\""))
             .In("svg class=\"key\" viewBox=\"0 0 28 8\" role=\"img\"") +
         name;
}

/// The heights that programs get too, and the build height, from the lowest on.
std::vector<SideSupportFacts> SidesToShow(const PrinterFacts& printer) {
  const auto isLower = [](const SideSupportFacts& a, const SideSupportFacts& b) {
    return a.modelHeight.count < b.modelHeight.count;
  };
  std::vector<SideSupportFacts> sides = printer.sideSupport;
  const SideSupportFacts& highest = printer.sideSupportCurve.back();
  const auto at = std::lower_bound(sides.begin(), sides.end(), highest, isLower);
  if (at == sides.end() || isLower(highest, *at)) sides.insert(at, highest);
  return sides;
}

Html SideTag(const DefinitionFacts& facts) {
  const int given = IsGiven(facts, "SupportExtend") + IsGiven(facts, "SupportExtendAngle");
  if (given == 2) return {};
  return given == 1 ? Tag("built-in", "partly built-in") : BuiltInTag();
}

Html Measure(const Html& value, const Html& bar) {
  return (value.In("span") + bar).In("div class=\"measure\"").In("td");
}

Html ModeRow(const DefinitionFacts& facts, const tavrinlib::PrintMode& mode,
             std::int64_t greatestSlice, std::int64_t mostLayers) {
  Html name = Html::Number(mode.number);
  if (mode.number == facts.printer.defaultModeNumber) name += Tag("default", "default");
  if (mode.limited) name += Tag("warn", "limited");
  if (mode.limitedContinuous)
    name += (Html(" limit ") + Html::Number(*mode.limitedContinuous)).In("span class=\"limit\"");
  const Html slice = Html::Number(mode.sliceHeight.count) + "\u00A0\u00B5m";
  const Html layers = mode.sliceCount ? Html::Number(*mode.sliceCount) : Html("none");
  const Html cells =
      name.In("th scope=\"row\"") +
      Measure(slice, Bar(mode.sliceHeight.count, greatestSlice, Html("Slice height ") + slice)) +
      Measure(layers, Bar(mode.sliceCount.value_or(0), mostLayers, Html("Layers: ") + layers)) +
      (Html::Number(mode.firstValue) + " / " + Html::Number(mode.secondValue)).In("td");
  return cells.In(mode.limited ? Html("tr class=\"limited\"") : Html("tr"));
}

Html UnusedRows(const Html& kind, const std::vector<InkEntryFacts>& table) {
  Html rows;
  for (const InkEntryFacts& entry : table) {
    if (entry.slots.empty())
      rows += FactRow(kind + Html::Number(entry.code), Html::Text(entry.name) + ", in no slot");
  }
  return rows;
}

}  // namespace

Html VolumeSection(const DefinitionFacts& facts) {
  const PrinterFacts& printer = facts.printer;
  const Html size = TagUnlessGiven(facts, "PrinterSize");
  const Html rows = FactRow("Width", Millimetres(printer.widthUm) + size) +
                    FactRow("Depth", Millimetres(printer.depthUm) + size) +
                    FactRow("Height", Millimetres(printer.heightUm) + size) +
                    FactRow("Print margin", Millimetres(printer.printMargin.count) +
                                                TagUnlessGiven(facts, "PrintMargin")) +
                    FactRow("Head band", Html::Text(NumberText(printer.headBand.count)) +
                                             "\u00A0mm" + TagUnlessGiven(facts, "HeadBandSize"));
  return Section("Build volume", VolumeDrawing(printer) + FactTable(rows));
}

Html SupportSection(const DefinitionFacts& facts) {
  const PrinterFacts& printer = facts.printer;
  Html rows = FactRow(Key("top", "Top support"), Millimetres(printer.topSupport.count) +
                                                     TagUnlessGiven(facts, "SupportThickness")) +
              FactRow(Key("detach", "Detach layer"), Millimetres(printer.detachLayer.count) +
                                                         TagUnlessGiven(facts, "DetachLayerSize"));
  for (const SideSupportFacts& at : SidesToShow(printer)) {
    rows += FactRow(Key("curve", Html("Side support at ") + Millimetres(at.modelHeight.count)),
                    Millimetres(at.thickness.count) + SideTag(facts));
  }
  rows += FactRow("Size code (\u22122 to 6)",
                  Html::Number(printer.supportSizeCode) +
                      (IsGiven(facts, "SupportSizeSetting") ? Html() : SideTag(facts)));
  return Section("Support", SupportCurve(printer) + FactTable(rows));
}

Html ModesSection(const DefinitionFacts& facts) {
  std::int64_t greatestSlice = 0;
  std::int64_t mostLayers = 0;
  for (const tavrinlib::PrintMode& mode : facts.printer.modes) {
    greatestSlice = std::max<std::int64_t>(greatestSlice, mode.sliceHeight.count);
    mostLayers = std::max<std::int64_t>(mostLayers, mode.sliceCount.value_or(0));
  }
  Html rows;
  for (const tavrinlib::PrintMode& mode : facts.printer.modes)
    rows += ModeRow(facts, mode, greatestSlice, mostLayers);
  if (rows.IsEmpty()) return Section("Print modes", Html("The printer has no print mode.").In("p"));
  return Section(
      "Print modes",
      Table("modes", "Before a limited mode hosts warn of warping; it may run on up to its limit.",
            {"Mode", "Slice height", "Layers", "Value pair"}, rows));
}

Html MachineSection(const DefinitionFacts& facts) {
  const PrinterFacts& printer = facts.printer;
  const auto switchRow = [&](const Html& name, bool isOn, const char* key) {
    return FactRow(name, (isOn ? Html("on") : Html("<span class=\"off\">off</span>")) +
                             TagUnlessGiven(facts, key));
  };
  const std::int32_t setting = printer.chippingAllowanceSetting;
  const Html allowance = setting == 0 ? Html("<span class=\"off\">none</span>")
                                      : Html("setting ") + Html::Number(setting);
  return Section(
      "Machine",
      FactTable(switchRow("Smoothing", printer.smoothing, "AntiAliasing") +
                switchRow("Bidirectional feed", printer.feedBiDirection, "Reverse") +
                switchRow("Wrap reduction", printer.wrapReduction, "White_White") +
                switchRow("Automatic cleaning", printer.autoCleaning, "AutoCleaningEnabled") +
                switchRow("Nozzle check while printing", printer.nozzleCheck, "NCUEnabled") +
                FactRow("Chipping allowance",
                        allowance + TagUnlessGiven(facts, "CuttingMarginSetting"))));
}

Html HiddenSection(const DefinitionFacts& facts) {
  const HiddenFacts& hidden = facts.hidden;
  Html rows =
      FactRow("Support extent", Millimetres(hidden.supportExtend.count)) +
      FactRow("Support angle", Html::Text(NumberText(hidden.supportExtendAngle)) + "\u00B0") +
      FactRow("Cutting margin", Millimetres(hidden.cuttingMarginThickness.count));
  for (std::size_t i = 0; i < hidden.colorThicknesses.size(); ++i) {
    rows += FactRow(Html("Colour thickness of mode ") + Html::Number(facts.printer.modes[i].number),
                    Millimetres(hidden.colorThicknesses[i].count));
  }
  for (const std::int32_t mode : hidden.modesLeftOut)
    rows += FactRow(Html("Mode ") + Html::Number(mode), "left out, it lacks a key");
  rows += UnusedRows("Colour ", hidden.colors) + UnusedRows("Ink type ", hidden.inkTypes);
  return Section("Not handed out", FactTable(rows));
}

}  // namespace tavrin::tool
