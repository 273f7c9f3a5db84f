#include "commands/GetCommand.h"

#include <algorithm>
#include <cstdlib>
#include <memory>
#include <string>
#include <vector>

#include "Failure.h"
#include "check/DefinitionReading.h"
#include "check/Rules.h"
#include "definition/TextConversion.h"
#include "edit/KeyNames.h"
#include "facts/LoadFailure.h"
#include "files/FileTransfer.h"
#include "files/StandardStreams.h"
#include "files/TextForms.h"
#include "keys/KeyFacts.h"

namespace tavrin::tool {

namespace {

/// How much of the text the library takes for the number; 0 where there is none.
std::size_t NumberLength(const std::string& text, bool isInteger) {
  const char* begin = text.c_str();
  char* end = nullptr;
  if (isInteger) {
    std::strtoll(begin, &end, 10);
  } else {
    std::strtod(begin, &end);
  }
  return static_cast<std::size_t>(end - begin);
}

/// The value as the library reads it: without what it takes off, and of a number what it takes for
/// one. Empty where it reads none.
std::string ValueOf(const Reading& reading, const WatchedRead& read) {
  if (!read.found) return {};
  std::int32_t number = 0;
  const KeyFacts& facts = FactsOf(reading.KnownKeyOf(read.key, &number)->Shape());
  const std::string text = NarrowCopy(read.text);
  switch (facts.form) {
    case KeyFacts::Form::Switch:
    case KeyFacts::Form::Integer:
      return text.substr(0, NumberLength(text, true));
    case KeyFacts::Form::Number:
    case KeyFacts::Form::Length:
      return text.substr(0, NumberLength(text, false));
    default:
      return text;
  }
}

/// For a person without what would drive the terminal, for programs as it is.
std::string Shown(const std::string& text) {
  return IsTerminal() ? Printable(text) : ToUtf8(text);
}

/// All that has a value, in the order of the lines.
std::string ListValues(const Reading& reading) {
  std::vector<const WatchedRead*> reads;
  for (const WatchedRead& read : reading.reads)
    reads.push_back(&read);
  std::stable_sort(reads.begin(), reads.end(), [&](const WatchedRead* a, const WatchedRead* b) {
    return reading.LineOf(a->key) < reading.LineOf(b->key);
  });
  std::string text;
  for (const WatchedRead* read : reads) {
    const std::string value = ValueOf(reading, *read);
    if (!value.empty()) text += read->key + '=' + Shown(value) + '\n';
  }
  return text;
}

/// Why the key has no value, and what the printer gets.
Failure NoValue(const std::string& file, const Reading& reading, const std::string& key) {
  const WatchedRead* read = reading.Find(key);
  std::int32_t number = 0;
  const KeyFacts& facts = FactsOf(reading.KnownKeyOf(key, &number)->Shape());
  if (read == nullptr) {
    return {file, key + " is not read, as " + facts.governor + " does not ask for it",
            "tavrin keys " + key + " tells more", ExitStatus::SomethingToLookAt};
  }
  return {file, key + " has no value, " + facts.Outcome(*reading.config, number),
          "tavrin set writes one", ExitStatus::SomethingToLookAt};
}

ExitStatus Get(const std::string& file, const std::vector<std::string>& keys) {
  const DefinitionReading definition = ReadDefinition(ReadInput(file));
  const Reading& reading = definition.reading;
  ExitStatus status = ExitStatus::NothingToReport;
  std::string text = keys.empty() ? ListValues(reading) : "";
  for (const std::string& key : keys) {
    std::int32_t number = 0;
    const KnownKey* known = reading.KnownKeyOf(key, &number);
    if (known == nullptr) throw UnknownKey(reading, key, "tavrin keys prints them all");
    const std::string name = known->WithNumber(number);
    const WatchedRead* read = reading.Find(name);
    const std::string value = read == nullptr ? "" : ValueOf(reading, *read);
    if (value.empty()) {
      status = std::max(status, ReportFailure(NoValue(NameOfInput(file), reading, name)));
      continue;
    }
    text += (keys.size() == 1 ? "" : name + '=') + Shown(value) + '\n';
  }
  PrintText(text);
  if (reading.loads) return status;
  return std::max(status, ReportFailure(ExplainRefusal(NameOfInput(file), definition.container)));
}

}  // namespace

Command GetCommand() {
  struct Options {
    std::string file;
    std::vector<std::string> keys;
  };
  const auto options = std::make_shared<Options>();
  return {
      "get",
      "Print values of a definition as the library reads them",
      {Required("FILE", &options->file,
                "The definition, enciphered or as a plain INI file; - is standard input"),
       {"KEY", &options->keys, "The keys; without one, all that have a value in the definition"}},
      "Prints lines KEY=VALUE, as tavrin set takes them; of a single key the value alone. Of a\n"
      "number that is what the library takes for one: 53 of 53,7. A key without a value prints\n"
      "nothing, and the exit status is 1. tavrin show prints what the printer gets, defaults\n"
      "included.\n\n"
      "Example: tavrin get printer.dat\n"
      "         tavrin get printer.dat Mode1SliceSize",
      [options] { return Get(options->file, options->keys); }};
}

}  // namespace tavrin::tool
