#include "sheet/DataSheet.h"

#include <algorithm>

#include "TavrinVersion.h"
#include "check/FileReport.h"
#include "check/FindingLimit.h"
#include "check/Rules.h"
#include "sheet/Elements.h"
#include "sheet/InkSection.h"
#include "sheet/PrinterSections.h"
#include "sheet/SheetStyle.h"

namespace tavrin::tool {

namespace {

Html OrNotHandedOut(const std::optional<std::string>& text) {
  if (!text) return "not handed out";
  return text->empty() ? Html("none") : Html::Text(*text);
}

/// What check finds in the definition without options.
Findings FindingsIn(const DefinitionFacts& facts) {
  return LimitFindings(FindAll(facts.definition.reading), Severity::Warning);
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

Html DefaultMode(const DefinitionFacts& facts) {
  const auto& modes = facts.printer.modes;
  const std::int32_t number = facts.printer.defaultModeNumber;
  const bool isThere = std::any_of(modes.begin(), modes.end(),
                                   [number](const auto& mode) { return mode.number == number; });
  return Html::Number(number) + (isThere ? Html() : Html(", which no mode has")) +
         TagUnlessGiven(facts, "DefaultMode");
}

Html Identity(const DefinitionFacts& facts) {
  const PrinterFacts& printer = facts.printer;
  const auto fact = [](const Html& name, const Html& value) {
    return name.In("dt") + value.In("dd");
  };
  const Html identity =
      fact("Version", OrNotHandedOut(printer.version)) +
      fact("Network address", OrNotHandedOut(printer.networkAddress)) +
      fact("Print modes", Html::Number(static_cast<std::int64_t>(printer.modes.size()))) +
      fact("Default print mode", DefaultMode(facts));
  const Html note = Html("Not handed out: ") + Html::Text(PrinterFacts::kNoIdentity);
  return identity.In("dl class=\"identity\"") +
         (printer.HasIdentity() ? Html() : note.In("p class=\"note\""));
}

Html Header(const DefinitionFacts& facts, const Findings& findings) {
  const Html name = OrNotHandedOut(facts.printer.modelName) + TagUnlessGiven(facts, "ModelName");
  const Html heading = Html("Printer data sheet").In("p class=\"kind\"") + name.In("h1");
  return (heading.In("div") + Verdict(findings)).In("header") + Identity(facts);
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
  return Section("Check", Table("findings", "What tavrin check finds in the definition.",
                                {"Line", "Severity", "Finding"}, rows));
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
