#include "commands/DiffCommand.h"

#include <algorithm>
#include <memory>
#include <string>
#include <vector>

#include <nlohmann/json.hpp>

#include "check/DefinitionReading.h"
#include "diff/FactChanges.h"
#include "diff/IdleLines.h"
#include "facts/LoadFailure.h"
#include "files/FileTransfer.h"
#include "files/TextForms.h"

namespace tavrin::tool {

namespace {

using Json = nlohmann::ordered_json;

struct DiffOptions {
  std::string before;
  std::string after;
  std::string format = "text";
  bool withLines = false;
};

struct Difference {
  DefinitionReading before;
  DefinitionReading after;
  FactChanges changes;
  IdleLines idle = {};
  std::vector<std::string> others = {};
};

DefinitionReading Load(const std::string& file) {
  DefinitionReading definition = ReadDefinition(ReadInput(file));
  if (!definition.reading.loads) throw ExplainRefusal(NameOfInput(file), definition.container);
  return definition;
}

Difference Compare(const DiffOptions& options) {
  DefinitionReading before = Load(options.before);
  DefinitionReading after = Load(options.after);
  FactChanges changes = CompareFacts(ListFacts(before.reading), ListFacts(after.reading));
  Difference difference = {std::move(before), std::move(after), std::move(changes)};
  if (options.withLines) {
    const Reading& old = difference.before.reading;
    const Reading& now = difference.after.reading;
    difference.idle = FindIdleLines(old, now);
    difference.others = OtherDifferences(old, now);
  }
  return difference;
}

std::string AsText(const Difference& difference) {
  std::string text = ChangesAsText(difference.changes);
  const IdleLines& idle = difference.idle;
  if (idle.lines.empty() && idle.areAll && difference.others.empty()) return text;
  text += "Without effect\n";
  for (const LineChange& line : idle.lines) {
    text += std::string("  ") + (line.isNew ? '+' : '-') + std::to_string(line.number) + ": " +
            Printable(line.text) + '\n';
  }
  if (!idle.areAll) text += "  perhaps more, as too many keys differ for trying each\n";
  for (const std::string& other : difference.others)
    text += "  " + other + '\n';
  return text;
}

Json AsJson(const Fact::Value& value) {
  struct Element {
    Json operator()(std::monostate) const { return nullptr; }
    Json operator()(const std::string& text) const { return ToUtf8(text); }
    Json operator()(bool isOn) const { return isOn; }
    Json operator()(std::int64_t number) const { return number; }
    Json operator()(double number) const { return number; }
    Json operator()(const std::vector<std::int64_t>& list) const { return list; }
  };
  return std::visit(Element{}, value);
}

Json AsJson(const Fact* fact) {
  return fact == nullptr ? Json() : AsJson(fact->value);
}

/// An object for each value; those of something new or gone have one side.
void AppendTo(Json* array, const FactChange& change) {
  constexpr const char* kKinds[] = {"changed", "new", "gone"};
  const std::size_t count = std::max(change.before.size(), change.after.size());
  for (std::size_t i = 0; i < count; ++i) {
    const Fact* before = change.before.empty() ? nullptr : &change.before[i];
    const Fact* after = change.after.empty() ? nullptr : &change.after[i];
    const Fact& fact = before == nullptr ? *after : *before;
    const std::string unit = NameOf(fact.unit);
    const bool isHandedOut =
        (before != nullptr && before->isHandedOut) || (after != nullptr && after->isHandedOut);
    array->push_back({{"kind", kKinds[static_cast<std::size_t>(change.kind)]},
                      {"group", NameOf(fact.group)},
                      {"item", fact.item},
                      {"field", fact.field},
                      {"old", AsJson(before)},
                      {"new", AsJson(after)},
                      {"unit", unit.empty() ? Json() : Json(unit)},
                      {"handedOut", isHandedOut}});
  }
}

std::string AsJson(const Difference& difference, const DiffOptions& options) {
  const auto side = [](const std::string& file, const DefinitionReading& definition) {
    return Json{{"file", ToUtf8(file)}, {"container", NameOf(definition.container)}};
  };
  Json changes = Json::array();
  for (const FactChange& change : difference.changes)
    AppendTo(&changes, change);
  Json json = {{"schemaVersion", 1},
               {"old", side(options.before, difference.before)},
               {"new", side(options.after, difference.after)},
               {"changes", changes}};
  if (options.withLines) {
    json["lines"] = Json::array();
    for (const LineChange& line : difference.idle.lines) {
      json["lines"].push_back({{"side", line.isNew ? "new" : "old"},
                               {"line", line.number},
                               {"text", ToUtf8(line.text)}});
    }
    json["linesComplete"] = difference.idle.areAll;
    json["otherDifferences"] = difference.others;
  }
  return json.dump(2, ' ', true, Json::error_handler_t::replace) + '\n';
}

ExitStatus Diff(const DiffOptions& options) {
  CheckInputs({options.before, options.after});
  const Difference difference = Compare(options);
  PrintText(options.format == "json" ? AsJson(difference, options) : AsText(difference));
  return difference.changes.empty() ? ExitStatus::NothingToReport : ExitStatus::SomethingToLookAt;
}

}  // namespace

Command DiffCommand() {
  const auto options = std::make_shared<DiffOptions>();
  return {
      "diff",
      "Tell what changes for the printer from one definition to another",
      {Required("OLD", &options->before,
                "The definition before, enciphered or as a plain INI file; - is standard input"),
       Required("NEW", &options->after, "The definition after"),
       Choice("--format", &options->format, {"text", "json"},
              "Text for people or JSON for programs"),
       {"--lines", &options->withLines, "Print also the lines that differ without any effect"}},
      "Values are compared as the library reads them, defaults included: 5.0 and 5.000 are the\n"
      "same. Those that no host gets are marked. The exit status is 1 when the printer gets\n"
      "something else, whatever the lines. docs/diff.md tells more, and how to use it with git.\n\n"
      "Example: tavrin diff printer.dat printer.ini\n"
      "         tavrin diff --lines old.dat new.dat",
      [options] { return Diff(*options); }};
}

}  // namespace tavrin::tool
