#include "commands/SetCommand.h"

#include <algorithm>
#include <iostream>
#include <memory>
#include <set>
#include <string>
#include <vector>

#include "Failure.h"
#include "check/CopyToRead.h"
#include "check/DefinitionReading.h"
#include "check/FileReport.h"
#include "commands/Ciphering.h"
#include "definition/FileCipher.h"
#include "definition/IniSnapshot.h"
#include "definition/PrinterKeys.h"
#include "definition/TextConversion.h"
#include "diff/FactChanges.h"
#include "edit/Assignment.h"
#include "edit/FindingChanges.h"
#include "edit/KeyNames.h"
#include "files/Arguments.h"
#include "files/FileTransfer.h"
#include "files/TextForms.h"
#include "keys/KeyFacts.h"

namespace tavrin::tool {

namespace {

struct SetOptions {
  std::string file;
  std::vector<std::string> changes;
  std::vector<std::string> unset;
  bool isForced = false;
};

Failure Mistake(const std::string& argument, const std::string& reason, const std::string& remedy) {
  return {argument, reason, remedy, ExitStatus::Usage};
}

bool HasControl(const std::string& text) {
  return std::any_of(text.begin(), text.end(),
                     [](char c) { return (c >= 0 && c < ' ' && c != '\t') || c == 0x7F; });
}

/// A name that would not come out as that of a key.
void CheckName(const std::string& argument, const std::string& name) {
  if (!name.empty() && Trim(name) == name && name.front() != ';' && name.front() != '[' &&
      name.find('=') == std::string::npos && !HasControl(name))
    return;
  throw Mistake(argument, "names no key", "tavrin keys prints them all");
}

std::vector<Assignment> AssignmentsOf(const SetOptions& options) {
  if (!HasWholeArguments()) {
    throw Mistake("the command line", "has a character that the system's code page lacks",
                  "leave it out, or write it with an editor into a definition in UTF-16");
  }
  std::vector<Assignment> assignments;
  for (const std::string& change : options.changes) {
    const std::size_t equals = change.find('=');
    if (equals == std::string::npos)
      throw Mistake(change, "is no KEY=VALUE", "write KEY=VALUE, or --unset KEY to remove the key");
    CheckName(change, change.substr(0, equals));
    const std::string value = change.substr(equals + 1);
    if (value.find_first_of("\r\n") != std::string::npos)
      throw Mistake(change, "has a line break in its value", "a value stands in one line");
    assignments.push_back({change.substr(0, equals), value});
  }
  for (const std::string& key : options.unset) {
    CheckName(key, key);
    assignments.push_back({key, std::nullopt});
  }
  if (assignments.empty())
    throw Mistake(options.file, "is not to be changed in anything", "add KEY=VALUE or --unset KEY");
  std::set<std::string> keys;
  for (const Assignment& assignment : assignments) {
    if (!keys.insert(Folded(assignment.key)).second)
      throw Mistake(assignment.key, "is to be changed twice", "name each key once");
  }
  return assignments;
}

/// Refuses what is no definition by all appearances, to which a section would be added.
void CheckIsDefinition(const std::string& file, const Bytes& bytes, const Reading& reading) {
  if (reading.lines.HeaderLine() != 0 || ContainerOf(bytes)) return;
  throw Failure(file, "shows no definition, neither as it stands nor deciphered",
                "name a definition, or --force changes it all the same", ExitStatus::Errors);
}

/// Refuses a text in which lines that are added or changed would not be read.
void CheckEncoding(const std::string& file, const Reading& reading) {
  const TextFormat& format = reading.lines.Format();
  const bool isForeign = format.unitLength == 2 && !(format.markLength == 2 && format.lowByte == 0);
  if (!isForeign && (reading.lines.HeaderLine() != 0 || reading.lines.HiddenHeaderLine() == 0))
    return;
  throw Failure(file, "is in an encoding or behind a byte order mark that hides section [printer]",
                "tavrin check --fix takes the mark off; UTF-16 is little-endian with a mark",
                ExitStatus::Errors);
}

/// Spells the keys as the library does, and refuses those that it does not know.
void ResolveKeys(const Reading& reading, bool isForced, std::vector<Assignment>* assignments) {
  for (Assignment& assignment : *assignments) {
    std::int32_t number = 0;
    const KnownKey* known = reading.KnownKeyOf(assignment.key, &number);
    if (known != nullptr) {
      assignment.key = known->WithNumber(number);
      continue;
    }
    const bool isThere = reading.lines.Find(assignment.key) != nullptr;
    if (isForced || (!assignment.value && isThere)) continue;
    throw UnknownKey(reading, assignment.key,
                     assignment.value ? "--force writes it all the same" : "it is not there");
  }
}

bool IsSetAlready(const Reading& reading, const Assignment& assignment) {
  const WatchedRead* read = reading.Find(assignment.key);
  return assignment.value && read != nullptr && read->found &&
         read->text == WideCopy(*assignment.value);
}

Bytes Assigned(const Reading& reading, const std::vector<Assignment>& assignments) {
  Bytes plain = reading.plain;
  for (const Assignment& assignment : assignments) {
    if (!IsSetAlready(reading, assignment)) plain = Assigned(plain, assignment);
  }
  return plain;
}

/// What the library gets, or the start of it, as it cuts long values.
void CheckStored(const Reading& reading, const std::vector<Assignment>& assignments) {
  constexpr std::size_t kSurelyRead = 260;
  const CopyToRead copy(reading.plain);
  IniSnapshot ini(copy);
  for (const Assignment& assignment : assignments) {
    if (!assignment.value) continue;
    const std::wstring wanted = WideCopy(*assignment.value);
    std::wstring read;
    ini.ReadString(WideCopy(kPrinterSection).c_str(), WideCopy(assignment.key).c_str(), &read);
    const bool isCut = read.size() >= kSurelyRead && read.size() < wanted.size();
    if (isCut ? wanted.compare(0, read.size(), read) == 0 : wanted == read) continue;
    throw Failure(assignment.key, "the definition's encoding cannot hold the value",
                  "use characters that it has, or save the definition as UTF-16",
                  ExitStatus::Errors);
  }
}

/// Refuses what nothing reads after the change, and a definition that would not load.
void CheckOutcome(const std::string& file, const Reading& after, const Findings& brought,
                  const std::vector<Assignment>& assignments) {
  if (!after.loads) {
    std::string cause;
    for (const Finding& finding : brought) {
      if (finding.severity != Severity::Error) continue;
      cause = ": " + Printable(finding.key) + ": " + Printable(finding.what);
      break;
    }
    throw Failure(file, "would not load" + cause, "nothing is changed; --force does it",
                  ExitStatus::Errors);
  }
  for (const Assignment& assignment : assignments) {
    if (!assignment.value || after.Find(assignment.key) != nullptr) continue;
    std::int32_t number = 0;
    const KnownKey* known = after.KnownKeyOf(assignment.key, &number);
    throw Mistake(assignment.key,
                  std::string("nothing would read it, as ") + FactsOf(known->Shape()).governor +
                      " does not ask for it",
                  "set that in the same command, or --force writes it all the same");
  }
}

std::string LinesOf(const std::string& file, const Findings& findings, const std::string& prefix) {
  std::string lines;
  for (const Finding& finding : findings)
    lines += prefix + ReportsAsText({{file, std::nullopt, "", {finding}}}, false);
  return lines;
}

void Write(const std::string& file, Container container, Bytes plain) {
  if (container == Container::Enciphered)
    plain = Ciphered(NameOfInput(file), std::move(plain), EncryptBuffer);
  if (file == kStandardStream) {
    WriteStandardOutput(plain);
  } else {
    ReplaceFile(file, plain);
  }
}

ExitStatus Set(const SetOptions& options) {
  std::vector<Assignment> assignments = AssignmentsOf(options);
  const std::string name = NameOfInput(options.file);
  const Bytes bytes = ReadInput(options.file);
  const DefinitionReading before = ReadDefinition(bytes);
  CheckEncoding(name, before.reading);
  if (!options.isForced) CheckIsDefinition(name, bytes, before.reading);
  ResolveKeys(before.reading, options.isForced, &assignments);
  const Bytes plain = Assigned(before.reading, assignments);
  const bool isPassedOn = options.file == kStandardStream;
  if (plain == before.reading.plain) {
    if (isPassedOn) Write(options.file, before.container, plain);
    return ExitStatus::NothingToReport;
  }
  if (plain.empty()) throw Failure(name, "would be empty", "nothing is changed");
  const Reading after(plain);
  CheckStored(after, assignments);
  const FindingChanges findings(before.reading, after);
  if (!options.isForced) CheckOutcome(name, after, findings.brought, assignments);
  Write(options.file, before.container, plain);
  const std::string report = OutcomeAsText(before.reading, after) +
                             LinesOf(options.file, findings.mended, "mended: ") +
                             LinesOf(options.file, findings.brought, "new: ");
  if (isPassedOn) {
    std::cerr << report;
  } else {
    PrintText(report);
  }
  return FileReport{options.file, before.container, "", findings.brought}.Status();
}

}  // namespace

Command SetCommand() {
  const auto options = std::make_shared<SetOptions>();
  Argument unset = {"--unset", &options->unset, "Remove the key; may be given several times"};
  unset.kind = "KEY";
  return {
      "set",
      "Change keys of a definition in place",
      {Required("FILE", &options->file,
                "The definition, enciphered or as a plain INI file; with - standard input is\n"
                "changed into standard output"),
       {"KEY=VALUE", &options->changes,
        "The keys and the values that the library is to read of them"},
       unset,
       {"--force", &options->isForced,
        "Write also keys that nothing reads, and what would not load"}},
      "All changes are made or none. Every other byte stays: comments, order, line ends, "
      "encoding.\n"
      "The file is replaced in one step and keeps its permissions. Prints what changes for the\n"
      "printer, and the findings of tavrin check that the change mends or brings. The exit status\n"
      "is 1 when it brings warnings, 2 when it brings errors.\n\n"
      "Example: tavrin set printer.dat Mode1SliceSize=0.03 \"ModelName=Tavrin FC-500\"\n"
      "         tavrin set printer.ini --unset DefaultMode",
      [options] { return Set(*options); }};
}

}  // namespace tavrin::tool
