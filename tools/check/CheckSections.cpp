#include <algorithm>
#include <cctype>
#include <map>

#include "Spelling.h"
#include "check/Rules.h"
#include "definition/PrinterKeys.h"

namespace tavrin::tool {

namespace {

constexpr char kHeader[] = "[printer]";
constexpr char kDoesNotLoad[] = "the definition does not load";

/// A header with the keys up to the next one.
struct Section {
  const SectionHeader* header = nullptr;  ///< null for what precedes the first one
  std::vector<const KeyLine*> keys = {};
  bool hasKnownKey = false;
  bool hasVersion = false;
  bool isForPrinter = false;  ///< it has a key that other programs' sections hardly have

  void Add(const Check& check, const KeyLine& key) {
    std::int32_t number = 0;
    keys.push_back(&key);
    const bool isKnown = check.reading.KnownKeyOf(key.name, &number) != nullptr;
    const bool isVersion = Folded(key.name) == "version";
    hasKnownKey = hasKnownKey || isKnown;
    hasVersion = hasVersion || (isVersion && !key.value.empty());
    isForPrinter = isForPrinter || (isKnown && !isVersion && Folded(key.name) != "mode");
  }
};

/// What surrounds the section with the keys that the library does see left out.
std::vector<Section> SectionsOf(const Check& check) {
  const LineIndex& lines = check.reading.lines;
  std::vector<Section> sections(1);
  auto key = lines.Keys().begin();
  const auto addKeysBefore = [&](std::size_t line) {
    for (; key != lines.Keys().end() && key->number < line; ++key) {
      if (check.reading.Confirms(*key) && !IsForeignComment(*key)) sections.back().Add(check, *key);
    }
  };
  for (const SectionHeader& header : lines.Headers()) {
    addKeysBefore(header.number);
    sections.push_back({&header});
  }
  addKeysBefore(lines.Lines().size() + 1);
  return sections;
}

std::string LettersOf(const std::string& text) {
  std::string letters;
  for (const char c : Folded(text)) {
    if (std::isalnum(static_cast<unsigned char>(c)) != 0) letters += c;
  }
  return letters;
}

/// Whether a text is the name of the section but for a slip, whatever its brackets.
bool IsNearName(const std::string& text) {
  return SpellingDistance(LettersOf(text), kPrinterSection) <= 2;
}

/// A line that is to be the header, in brackets of other kinds, a comment, or without brackets; 0
/// when there is none.
std::size_t LineMeantAsHeader(const LineIndex& lines) {
  for (std::size_t i = 0; i < lines.Lines().size(); ++i) {
    const std::string_view line = Trim(lines.Lines()[i]);
    if (line.empty() || line.front() == '[' || line.find('=') != std::string_view::npos) continue;
    const bool isComment = line.front() == ';';
    const std::string_view text = Trim(line.substr(isComment ? 1 : 0));
    if (isComment && (text.empty() || text.front() != '[')) continue;
    if (IsNearName(std::string(text))) return i + 1;
  }
  return 0;
}

/// What is lost with keys that are not read.
std::string LossOf(const Section& section, bool loads) {
  const std::size_t count = section.keys.size();
  const std::string keys = count == 1 ? "its key" : "its " + std::to_string(count) + " keys";
  if (loads) return keys + (count == 1 ? " has no effect" : " have no effect");
  return std::string(kDoesNotLoad) + ", as " + keys +
         (section.hasVersion ? ", Version among them," : "") +
         (count == 1 ? " is not read" : " are not read");
}

/// Says where [printer] is to stand in place of what stands there.
class MissingSection {
 public:
  MissingSection(const Check& check, const std::vector<Section>& sections)
      : check_(check), lines_(check.reading.lines), sections_(sections) {}

  /// @return the section that the finding speaks of; null when it speaks of none.
  const Section* Find() const;

 private:
  const Section* MistypedHeader() const;
  /// Puts the header in place of part of a line.
  void Add(std::size_t line, std::size_t column, std::size_t count, const std::string& what,
           const Section& section) const;
  void AddAtHeader(const Section& section) const;
  void AddAtLine(std::size_t line) const;

  const Check& check_;
  const LineIndex& lines_;
  const std::vector<Section>& sections_;
};

const Section* MissingSection::MistypedHeader() const {
  const Section* found = nullptr;
  for (const Section& section : sections_) {
    if (section.header == nullptr) continue;
    const std::string& name = section.header->name;
    if (!IsNearName(name) && LettersOf(name).find(kPrinterSection) != 0) continue;
    if (found == nullptr || (section.hasVersion && !found->hasVersion)) found = &section;
  }
  return found;
}

void MissingSection::Add(std::size_t line, std::size_t column, std::size_t count,
                         const std::string& what, const Section& section) const {
  const std::string text = lines_.Lines()[line - 1];
  const std::string written = std::string(Trim(text.substr(column, count)));
  Finding& finding =
      check_.Add("no-section", line, Severity::Error, written.empty() ? kHeader : written, what,
                 LossOf(section, false),
                 std::string("write ") + kHeader + (count == 0 ? " above it" : " in its place"));
  finding.column = column + 1;
  finding.certainty = Certainty::Certain;
  finding.edits = {{line, column, count, std::string(kHeader) + (count == 0 ? "\n" : "")}};
}

void MissingSection::AddAtHeader(const Section& section) const {
  const SectionHeader& header = *section.header;
  Add(header.number, header.begin, header.end - header.begin,
      std::string("this is not section ") + kHeader + ", which is missing", section);
}

void MissingSection::AddAtLine(std::size_t line) const {
  Section below;
  for (const KeyLine& key : lines_.Keys()) {
    if (key.number > line && key.hasEquals) below.Add(check_, key);
  }
  Add(line, 0, lines_.Lines()[line - 1].size(),
      std::string("this is no header, and section ") + kHeader + " is missing", below);
}

const Section* MissingSection::Find() const {
  if (const Section* mistyped = MistypedHeader()) {
    AddAtHeader(*mistyped);
    return mistyped;
  }
  if (const std::size_t line = LineMeantAsHeader(lines_)) {
    AddAtLine(line);
    return &sections_.front();
  }
  for (const Section& section : sections_) {
    if (!section.hasKnownKey) continue;
    if (section.header != nullptr) {
      AddAtHeader(section);
    } else {
      Add(section.keys.front()->number, 0, 0,
          std::string("the header of section ") + kHeader + " is missing", section);
    }
    if (!section.isForPrinter) {
      check_.findings->back().certainty = Certainty::Likely;
      check_.findings->back().edits.clear();
    }
    return &section;
  }
  check_.Add("no-section", 1, Severity::Error, kHeader, "there is no such section", kDoesNotLoad,
             "write it and its keys");
  return nullptr;
}

/// Whether the keys would count without the header: those above it do, and these are new.
bool WouldContinue(const Check& check, const Section& section, const Section& before) {
  const LineIndex& lines = check.reading.lines;
  const SectionHeader& header = *section.header;
  const std::string_view line = lines.Lines()[header.number - 1];
  const std::string_view behind = Trim(line.substr(header.end));
  return section.hasKnownKey && before.header != nullptr &&
         before.header->place == KeyLine::Place::Section &&
         (behind.empty() || behind.front() == ';') &&
         std::none_of(section.keys.begin(), section.keys.end(),
                      [&](const KeyLine* key) { return lines.Find(key->name) != nullptr; });
}

/// What to do about a header that the keys below it are lost by.
std::string RemedyFor(const Section& section, bool wouldContinue, std::size_t first) {
  if (!section.hasKnownKey) return "remove it";
  if (wouldContinue) {
    return section.header->place == KeyLine::Place::LaterSection
               ? "remove this header"
               : "remove this header if its keys are meant to count";
  }
  const std::string move = "move the keys that are meant to ";
  return move + (first == 0 ? "that one" : "the section in line " + std::to_string(first));
}

/// What stands above the header, in the given line.
void CheckTop(const Check& check, const Section& section, std::size_t header) {
  const KeyLine& first = *section.keys.front();
  const std::size_t count = section.keys.size();
  const bool isCause = !check.reading.loads && section.hasVersion;
  const std::string keys = section.hasKnownKey ? Counted(count, "key") : Counted(count, "line");
  check
      .Add("outside-section", first.number, isCause ? Severity::Error : Severity::Warning,
           first.name,
           keys + (count == 1 ? " stands" : " stand") + " above " + kHeader + " in line " +
               std::to_string(header),
           isCause      ? std::string(kDoesNotLoad) + ", as Version is not read"
           : count == 1 ? "it has no effect"
                        : "they have no effect",
           section.hasKnownKey ? "move that header above this line"
                               : "write ; before what is a comment")
      .certainty = Certainty::Likely;
}

void CheckLostSection(const Check& check, const Section& section, const Section& before) {
  const LineIndex& lines = check.reading.lines;
  const SectionHeader& header = *section.header;
  const std::size_t length = header.end - header.begin;
  const bool isCause = !check.reading.loads && section.hasVersion;
  const bool isLater = header.place == KeyLine::Place::LaterSection;
  const bool wouldContinue = WouldContinue(check, section, before);
  const std::string first = "line " + std::to_string(lines.HeaderLine());
  Finding& finding =
      check.Add(isLater ? "later-section" : "outside-section", header.number,
                isCause ? Severity::Error : Severity::Warning,
                lines.Lines()[header.number - 1].substr(header.begin, length),
                isLater ? "only the first section [printer] is read, that in " + first
                        : "no section but [printer] is read",
                LossOf(section, !isCause), RemedyFor(section, wouldContinue, lines.HeaderLine()));
  finding.column = header.begin + 1;
  if (section.hasKnownKey) finding.certainty = Certainty::Likely;
  if (!isLater || !wouldContinue) return;
  finding.certainty = Certainty::Certain;
  finding.edits = {{header.number, header.begin, length, ""}};
}

/// Of the section that counts, what stands in the line of its header.
///
/// @return whether the version is lost with it.
bool CheckHeaderLine(const Check& check, const Section& section) {
  const SectionHeader& header = *section.header;
  const std::string& line = check.reading.lines.Lines()[header.number - 1];
  const std::string_view behind = Trim(std::string_view(line).substr(header.end));
  const bool loads = check.reading.loads;
  if (!header.hasEnd) {
    Finding& finding =
        check.Add("open-header", header.number, loads ? Severity::Warning : Severity::Error,
                  std::string(Trim(line)), "the header has no ] at its end",
                  loads ? "not every system sees the section" : kDoesNotLoad,
                  std::string("write ") + kHeader);
    finding.certainty = Certainty::Certain;
    finding.edits = {{header.number, header.begin, line.size() - header.begin, kHeader}};
    return section.hasVersion;
  }
  if (behind.empty() || behind.front() == ';') return false;
  const std::string name = behind.find('=') == std::string_view::npos
                               ? ""
                               : Folded(Trim(behind.substr(0, behind.find('='))));
  const bool isKey = !name.empty();
  const bool isVersion = name == "version";
  const bool isCause = isVersion && !loads;
  Finding& finding =
      check.Add("text-behind-header", header.number, isCause ? Severity::Error : Severity::Warning,
                kHeader, "text follows ] in its line",
                isCause ? std::string(kDoesNotLoad) + ", as that is not read" : "it has no effect",
                isKey ? "move it to a line of its own" : "write ; before it");
  const auto column = static_cast<std::size_t>(behind.data() - line.data());
  finding.column = column + 1;
  finding.certainty = Certainty::Certain;
  finding.edits = {{header.number, column, 0, isKey ? "\n" : "; "}};
  return isCause;
}

void CheckVersion(const Check& check) {
  const KeyLine* version = check.reading.lines.Find("Version");
  check.Add("no-version", Severity::Error, "Version",
            version == nullptr       ? "this key is missing"
            : version->value.empty() ? "this key has no value"
                                     : "nothing of so long a value is read",
            kDoesNotLoad, "write Version=... in section [printer]");
}

}  // namespace

void CheckSections(const Check& check) {
  const LineIndex& lines = check.reading.lines;
  const std::vector<Section> sections = SectionsOf(check);
  const bool isMissing = lines.HeaderLine() == 0 && !check.reading.loads;
  const Section* judged = isMissing ? MissingSection(check, sections).Find() : nullptr;
  if (isMissing && judged == nullptr) return;
  bool isVersionLost = isMissing;
  for (const Section& section : sections) {
    const SectionHeader* header = section.header;
    if (header != nullptr && header->place == KeyLine::Place::Section) {
      isVersionLost = CheckHeaderLine(check, section) || isVersionLost;
      continue;
    }
    const bool isHidden = header != nullptr && header->isHidden;
    if (section.keys.empty() || &section == judged || isHidden) continue;
    if (header != nullptr) {
      CheckLostSection(check, section, *(&section - 1));
    } else {
      CheckTop(check, section, judged != nullptr ? judged->header->number : lines.HeaderLine());
    }
    isVersionLost = isVersionLost || section.hasVersion;
  }
  if (!check.reading.loads && !isVersionLost) CheckVersion(check);
}

}  // namespace tavrin::tool
