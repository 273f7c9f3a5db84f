#include "sheet/DataSheet.h"

#include <algorithm>

#include "TavrinVersion.h"
#include "check/FileReport.h"
#include "check/FindingLimit.h"
#include "check/Ignores.h"
#include "check/Rules.h"
#include "definition/TextConversion.h"
#include "definition/ValueConversion.h"
#include "keys/KeyFacts.h"
#include "sheet/Drawings.h"
#include "sheet/InkColor.h"
#include "sheet/InkRack.h"
#include "sheet/SheetStyle.h"

namespace tavrin::tool {

namespace {

/// Whether the printer gets the value of the key from the definition.
bool IsGiven(const DefinitionFacts& facts, const std::string& key) {
  using Form = KeyFacts::Form;
  const WatchedRead* read = facts.definition.reading.Find(key);
  if (read == nullptr || !read->found) return false;
  if (read->kind != WatchedRead::Kind::Text) return read->converted;
  const std::string text = NarrowCopy(read->text);
  const Form form = FactsOf(key).form;
  std::int32_t integer = 0;
  double number = 0.0;
  if (form == Form::Integer) return ParseInt(text, &integer);
  if (form == Form::Number) return ParseDouble(text, &number);
  return form != Form::Numbers || std::count(text.begin(), text.end(), ',') >= 2;
}

Html Tag(const Html& style, const Html& text) {
  return Html(" ") + text.In(Html("span class=\"tag ") + style + "\"");
}

Html BuiltInTag() {
  return Tag("built-in", "built-in");
}

Html TagUnlessGiven(const DefinitionFacts& facts, const std::string& key) {
  return IsGiven(facts, key) ? Html() : BuiltInTag();
}

Html OrNotHandedOut(const std::optional<std::string>& text) {
  if (!text) return "not handed out";
  return text->empty() ? Html("none") : Html::Text(*text);
}

Html Titled(const Html& title, const Html& content) {
  return (title.In("h2") + content).In("section");
}

Html FactRow(const Html& name, const Html& value) {
  return (name.In("th scope=\"row\"") + value.In("td")).In("tr");
}

Html FactTable(const Html& rows) {
  return rows.In("tbody").In("table class=\"facts\"");
}

/// A table whose columns have titles and whose rows begin with a title.
Html Table(const Html& style, const Html& caption, const std::vector<Html>& titles,
           const Html& rows) {
  Html head;
  for (const Html& title : titles)
    head += title.In("th scope=\"col\"");
  return (caption.In("caption") + head.In("tr").In("thead") + rows.In("tbody"))
      .In(Html("table class=\"") + style + "\"");
}

/// What check finds in the definition without options.
Findings FindingsIn(const DefinitionFacts& facts) {
  Findings findings = FindAll(facts.definition.reading);
  DropIgnored(IgnoredBy(facts.definition.reading.lines), &findings);
  return LimitFindings(std::move(findings), Severity::Warning);
}

Html Verdict(const Findings& findings) {
  if (findings.empty()) return Html("check: nothing to report").In("p class=\"verdict good\"");
  const auto isError = [](const Finding& finding) { return finding.severity == Severity::Error; };
  const auto errors =
      static_cast<std::size_t>(std::count_if(findings.begin(), findings.end(), isError));
  const std::size_t warnings = findings.size() - errors;
  std::string counts = errors > 0 ? Counted(errors, "error") : "";
  if (warnings > 0) counts += (counts.empty() ? "" : ", ") + Counted(warnings, "warning");
  return (Html("check: ") + Html::Text(counts))
      .In(errors > 0 ? Html("p class=\"verdict bad\"") : Html("p class=\"verdict warn\""));
}

Html Header(const DefinitionFacts& facts, const Findings& findings) {
  const PrinterFacts& printer = facts.printer;
  const auto fact = [](const Html& name, const Html& value) {
    return name.In("dt") + value.In("dd");
  };
  const auto mode = std::find_if(
      printer.modes.begin(), printer.modes.end(),
      [&](const tavrinlib::PrintMode& m) { return m.number == printer.defaultModeNumber; });
  Html defaultMode = Html::Number(printer.defaultModeNumber);
  if (mode == printer.modes.end()) defaultMode += ", which no mode has";
  const Html name = OrNotHandedOut(printer.modelName) + TagUnlessGiven(facts, "ModelName");
  Html header = (Html("Printer data sheet").In("p class=\"kind\"") + name.In("h1")).In("div") +
                Verdict(findings);
  Html identity =
      fact("Version", OrNotHandedOut(printer.version)) +
      fact("Network address", OrNotHandedOut(printer.networkAddress)) +
      fact("Print modes", Html::Number(static_cast<std::int64_t>(printer.modes.size()))) +
      fact("Default print mode", defaultMode + TagUnlessGiven(facts, "DefaultMode"));
  Html note;
  if (!printer.HasIdentity())
    note = Html::Text(std::string("Not handed out: ") + PrinterFacts::kNoIdentity)
               .In("p class=\"note\"");
  return header.In("header") + identity.In("dl class=\"identity\"") + note;
}

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
  return Titled("Build volume", VolumeDrawing(printer) + FactTable(rows));
}

/// A sample of a line in the curve's drawing.
Html Key(const Html& style, const Html& name) {
  return (name.In("title") +
          Html().In(Html("line class=\"") + style + "\" x1=\"0\" y1=\"4\" x2=\"28\" y2=\"4\""))
             .In("svg class=\"key\" viewBox=\"0 0 28 8\" role=\"img\"") +
         name;
}

Html SupportSection(const DefinitionFacts& facts) {
  const PrinterFacts& printer = facts.printer;
  const int given = IsGiven(facts, "SupportExtend") + IsGiven(facts, "SupportExtendAngle");
  const Html side = given == 2   ? Html()
                    : given == 1 ? Tag("built-in", "partly built-in")
                                 : BuiltInTag();
  Html rows = FactRow(Key("top", "Top support"), Millimetres(printer.topSupport.count) +
                                                     TagUnlessGiven(facts, "SupportThickness")) +
              FactRow(Key("detach", "Detach layer"), Millimetres(printer.detachLayer.count) +
                                                         TagUnlessGiven(facts, "DetachLayerSize"));
  std::vector<SideSupportFacts> sides = printer.sideSupport;
  const SideSupportFacts& highest = printer.sideSupportCurve.back();
  const bool isThere = std::any_of(sides.begin(), sides.end(), [&](const SideSupportFacts& at) {
    return at.modelHeight.count == highest.modelHeight.count;
  });
  if (!isThere) sides.push_back(highest);
  std::sort(sides.begin(), sides.end(), [](const SideSupportFacts& a, const SideSupportFacts& b) {
    return a.modelHeight.count < b.modelHeight.count;
  });
  for (const SideSupportFacts& at : sides) {
    rows += FactRow(Key("curve", Html("Side support at ") + Millimetres(at.modelHeight.count)),
                    Millimetres(at.thickness.count) + side);
  }
  rows += FactRow("Size code (\u22122 to 6)",
                  Html::Number(printer.supportSizeCode) +
                      (IsGiven(facts, "SupportSizeSetting") ? Html() : side));
  return Titled("Support", SupportCurve(printer) + FactTable(rows));
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
  if (rows.IsEmpty()) return Titled("Print modes", Html("The printer has no print mode.").In("p"));
  return Titled(
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
  return Titled(
      "Machine",
      FactTable(switchRow("Smoothing", printer.smoothing, "AntiAliasing") +
                switchRow("Bidirectional feed", printer.feedBiDirection, "Reverse") +
                switchRow("Wrap reduction", printer.wrapReduction, "White_White") +
                switchRow("Automatic cleaning", printer.autoCleaning, "AutoCleaningEnabled") +
                switchRow("Nozzle check while printing", printer.nozzleCheck, "NCUEnabled") +
                FactRow("Chipping allowance",
                        allowance + TagUnlessGiven(facts, "CuttingMarginSetting"))));
}

Html SlotTable(const DefinitionFacts& facts) {
  Html rows;
  for (const tavrinlib::Slot& slot : facts.printer.slots) {
    const Html name =
        (Swatch(ColorNameOf(facts, slot), slot.valid) + Html::Number(slot.number).In("span"))
            .In("div class=\"slot\"");
    rows += (name.In("th scope=\"row\"") +
             (slot.valid ? Html::Text(slot.inkName) : Html("unknown ink")).In("td") +
             Html::Text(slot.inkId).In("td class=\"id\"") + Html::Number(slot.colorCode).In("td") +
             Html::Number(slot.inkTypeCode).In("td"))
                .In("tr");
  }
  return Table("slots", Html("Swatches show the colour that a name says, not how it prints."),
               {"Slot", "Ink", "Ink id", "Colour code", "Ink type code"}, rows);
}

Html CategoryTable(const DefinitionFacts& facts) {
  Html rows;
  for (std::size_t i = 0; i < facts.printer.categories.size(); ++i) {
    Html slots;
    for (const std::uint32_t number : facts.printer.categories[i])
      slots += (slots.IsEmpty() ? Html() : Html(", ")) + Html::Number(number);
    rows += (Html::Number(static_cast<std::int64_t>(i)).In("th scope=\"row\"") +
             CategoryName(facts, i).In("td") + (slots.IsEmpty() ? Html("none") : slots).In("td"))
                .In("tr");
  }
  return Table("categories", "Hosts get the slots of a category, not its name.",
               {"Index", "Category", "Slots"}, rows);
}

Html InkSection(const DefinitionFacts& facts) {
  const HiddenFacts& hidden = facts.hidden;
  Html title = Html("Ink slots");
  if (hidden.hasBuiltInSlots) title += BuiltInTag();
  Html note;
  if (hidden.hasBuiltInColors || hidden.hasBuiltInInkTypes) {
    note = (Html(hidden.hasBuiltInColors && hidden.hasBuiltInInkTypes
                     ? Html("Colours and ink types are")
                 : hidden.hasBuiltInColors ? Html("Colours are")
                                           : Html("Ink types are")) +
            " those of the built-in table.")
               .In("p class=\"note\"");
  }
  return Titled(title, InkRack(facts) +
                           (SlotTable(facts).In("div") + CategoryTable(facts).In("div"))
                               .In("div class=\"pair wider\"") +
                           note);
}

Html CheckSection(const Findings& findings) {
  Html rows;
  for (const Finding& finding : findings) {
    const bool isError = finding.severity == Severity::Error;
    rows +=
        (Html::Number(static_cast<std::int64_t>(finding.line)).In("th scope=\"row\"") +
         Tag(isError ? Html("bad") : Html("warn"), Html::Text(NameOf(finding.severity))).In("td") +
         (Html::Text(finding.key).In("b") + ": " + Html::Text(finding.what) + ", " +
          Html::Text(finding.effect) + "; " + Html::Text(finding.remedy) + " " +
          Html::Text('[' + finding.rule + ']').In("span class=\"off\""))
             .In("td"))
            .In("tr");
  }
  if (rows.IsEmpty())
    return (Html("Check").In("h2") +
            Html("tavrin check has nothing to report on this definition.").In("p"))
        .In("section class=\"clean\"");
  return Titled("Check", Table("findings", "What tavrin check finds in the definition.",
                               {"Line", "Severity", "Finding"}, rows));
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
  const auto addUnused = [&](const Html& kind, const std::vector<InkEntryFacts>& table) {
    for (const InkEntryFacts& entry : table) {
      if (!entry.slots.empty()) continue;
      rows += FactRow(kind + Html::Number(entry.code), Html::Text(entry.name) + ", in no slot");
    }
  };
  addUnused("Colour ", hidden.colors);
  addUnused("Ink type ", hidden.inkTypes);
  return Titled("Not handed out", FactTable(rows));
}

Html Sheet(const DefinitionFacts& facts, bool withHidden) {
  const Findings findings = FindingsIn(facts);
  const Html footer =
      Html("Values as hosts get them from the library;") + BuiltInTag() +
      " marks those that the definition leaves to it. Made by tavrin " TAVRIN_VERSION_STRING
      " of " +
      Html::Text(NameOfInput(facts.file)) + " (" + Html::Text(NameOf(facts.definition.container)) +
      ").";
  return (Header(facts, findings) +
          (VolumeSection(facts) + SupportSection(facts)).In("div class=\"pair\"") +
          (ModesSection(facts) + MachineSection(facts)).In("div class=\"pair wider\"") +
          InkSection(facts) + (withHidden ? HiddenSection(facts) : Html()) +
          CheckSection(findings) + footer.In("footer"))
      .In("article");
}

}  // namespace

std::string DataSheets(const std::vector<DefinitionFacts>& definitions, bool withHidden) {
  Html title;
  Html sheets;
  for (const DefinitionFacts& facts : definitions) {
    title += (title.IsEmpty() ? Html() : Html(", ")) + OrNotHandedOut(facts.printer.modelName);
    sheets += Sheet(facts, withHidden) + "\n";
  }
  const Html head =
      Html(
          "<meta charset=\"utf-8\">\n"
          "<meta name=\"viewport\" content=\"width=device-width, initial-scale=1\">\n"
          "<meta name=\"color-scheme\" content=\"light dark\">\n"
          "<meta name=\"generator\" content=\"tavrin " TAVRIN_VERSION_STRING "\">\n") +
      (title + " \u2013 data sheet").In("title") + "\n";
  return "<!DOCTYPE html>\n<html lang=\"en\">\n<head>\n" + head.Ascii() + "<style>" + kSheetStyle +
         "</style>\n</head>\n<body>\n" + sheets.Ascii() + "</body>\n</html>\n";
}

}  // namespace tavrin::tool
