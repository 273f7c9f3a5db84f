#include "commands/KeysCommand.h"

#include <algorithm>
#include <iomanip>
#include <memory>
#include <optional>
#include <sstream>
#include <string>
#include <vector>

#include <nlohmann/json.hpp>

#include "Failure.h"
#include "Spelling.h"
#include "check/LineIndex.h"
#include "check/Rules.h"
#include "files/FileTransfer.h"
#include "keys/KeyFacts.h"
#include "keys/KeyText.h"

namespace tavrin::tool {

namespace {

struct KeysOptions {
  std::optional<std::string> key;
  std::string format = "text";
};

std::string ExampleOf(const KeyFacts& facts) {
  return KnownKeyOfShape(facts.shape).WithNumber(1) + '=' + facts.example;
}

/// What stands for a number in a key's name.
std::string PlaceOfNumber(const KeyFacts& facts) {
  const int digits = KnownKeyOfShape(facts.shape).digits;
  if (digits == 0) return {};
  return digits == 1 ? " (# is a number)" : " (# is a number of three digits or more)";
}

std::string Overview(const std::vector<const KeyFacts*>& keys) {
  std::ostringstream text;
  const KeyFacts* previous = nullptr;
  for (const KeyFacts* facts : keys) {
    if (previous == nullptr || previous->group != facts->group)
      text << (previous == nullptr ? "" : "\n") << TitleOf(facts->group) << '\n';
    text << "  " << std::left << std::setw(25) << facts->shape << KeyText(*facts).values << '\n';
    previous = facts;
  }
  return text.str();
}

std::string Description(const KeyFacts& facts) {
  const KeyText known(facts);
  std::ostringstream text;
  const auto row = [&](const char* title, const std::string& content) {
    if (!content.empty()) text << "  " << std::left << std::setw(12) << title << content << '\n';
  };
  text << facts.shape << PlaceOfNumber(facts) << '\n';
  row("Group", TitleOf(facts.group));
  row("Meaning", facts.meaning);
  row("Values", known.values);
  row("Beyond", facts.beyond == nullptr ? "" : facts.beyond);
  row("Usual", known.usual);
  row("Without it", known.without);
  row("Asked by", facts.governor == nullptr ? "" : facts.governor);
  row("Example", ExampleOf(facts));
  return text.str();
}

nlohmann::ordered_json BoundsOf(const Range& range) {
  if (range.IsUnbounded()) return nullptr;
  nlohmann::ordered_json bounds = nlohmann::ordered_json::object();
  if (range.least != -Range::kUnbounded) {
    bounds[range.hasLeast ? "least" : "above"] = range.least;
  }
  if (range.most != Range::kUnbounded) bounds[range.hasMost ? "most" : "below"] = range.most;
  return bounds;
}

nlohmann::ordered_json AsJson(const KeyFacts& facts) {
  const auto optional = [](const char* text) {
    return text == nullptr ? nlohmann::ordered_json() : nlohmann::ordered_json(text);
  };
  const KeyText known(facts);
  return {{"key", facts.shape},
          {"group", TitleOf(facts.group)},
          {"values", known.values},
          {"unit", facts.unit},
          {"range", BoundsOf(facts.range)},
          {"beyond", optional(facts.beyond)},
          {"usual", BoundsOf(facts.usual)},
          {"default", known.defaultText.empty() ? nlohmann::ordered_json()
                                                : nlohmann::ordered_json(known.defaultText)},
          {"without", known.without},
          {"askedBy", optional(facts.governor)},
          {"meaning", facts.meaning},
          {"example", ExampleOf(facts)}};
}

/// Whether the name spells the key, with a number or with what stands for one.
bool IsSpelledBy(const KnownKey& key, const std::string& name) {
  std::int32_t number = 0;
  if (key.Matches(name, &number)) return true;
  const std::string letters = key.prefix + std::string(static_cast<std::size_t>(key.digits), 'N');
  return Folded(key.Shape()) == Folded(name) || Folded(letters + key.suffix) == Folded(name);
}

/// Null when there is no key of the name.
const KeyFacts* FindKey(const std::string& name) {
  for (const KnownKey& key : ListKnownKeys()) {
    if (IsSpelledBy(key, name)) return &FactsOf(key.Shape());
  }
  return nullptr;
}

std::string NearestShape(const std::string& name) {
  const auto distance = [&](const KeyFacts& facts) {
    return SpellingDistance(Folded(name), Folded(facts.shape));
  };
  const auto& keys = ListKeyFacts();
  return std::min_element(
             keys.begin(), keys.end(),
             [&](const KeyFacts& a, const KeyFacts& b) { return distance(a) < distance(b); })
      ->shape;
}

ExitStatus PrintKeys(const KeysOptions& options) {
  std::vector<const KeyFacts*> keys;
  if (!options.key) {
    for (const KeyFacts& facts : ListKeyFacts())
      keys.push_back(&facts);
  } else if (const KeyFacts* facts = FindKey(*options.key)) {
    keys.push_back(facts);
  } else {
    throw Failure(Quoted(*options.key),
                  "no key has this name, the nearest is " + NearestShape(*options.key),
                  "tavrin keys prints them all", ExitStatus::Usage);
  }
  if (options.format == "json") {
    nlohmann::ordered_json objects = nlohmann::ordered_json::array();
    for (const KeyFacts* facts : keys)
      objects.push_back(AsJson(*facts));
    PrintText(nlohmann::ordered_json{{"schemaVersion", 1}, {"keys", objects}}.dump(2) + '\n');
  } else {
    PrintText(!options.key ? Overview(keys) : Description(*keys.front()));
  }
  return ExitStatus::NothingToReport;
}

}  // namespace

Command KeysCommand() {
  const auto options = std::make_shared<KeysOptions>();
  return {
      "keys",
      "Print what there is to know of the keys of a definition",
      {{"KEY", &options->key,
        "The key to print in full, such as PrintMargin or Mode1SliceSize; all keys\n"
        "in brief without it"},
       Choice("--format", &options->format, {"text", "json"},
              "Text for people or JSON for programs")},
      "# in a key's name stands for a number. Values out of range are taken as they are, or as\n"
      "is said; tavrin check warns of them, and of those that no printer can use.\n\n"
      "Example: tavrin keys Mode1SliceSize\n"
      "         tavrin keys --format=json",
      [options] { return PrintKeys(*options); }};
}

}  // namespace tavrin::tool
