#pragma once

#include <set>
#include <string>

#include "check/Finding.h"
#include "check/Reading.h"

namespace tavrin::tool {

/// What the rules look at, and where their findings go.
struct Check {
  /// Adds a finding on a line, or on the line of the key.
  ///
  /// @return the finding, for what only some have; good until the next one is added.
  Finding& Add(const char* rule, std::size_t line, Severity severity, const std::string& key,
               const std::string& what, const std::string& effect, const std::string& remedy) const;
  Finding& Add(const char* rule, Severity severity, const std::string& key, const std::string& what,
               const std::string& effect, const std::string& remedy) const;
  /// The same for warnings on the line of the key.
  Finding& Warn(const char* rule, const std::string& key, const std::string& what,
                const std::string& effect, const std::string& remedy) const;

  const Reading& reading;
  Findings* findings;
};

/// A text of the file, cut to at most 40 bytes; not within a character where it is UTF-8.
std::string Shortened(const std::string& text);
/// The same in quotes.
std::string Quoted(const std::string& text);
/// The count with what is counted, in the plural where it must be.
std::string Counted(std::size_t count, const std::string& noun);
/// The text with the number in place of each '#'.
std::string Numbered(const std::string& text, std::int32_t number);

/// Whether the line begins as comments of other formats do.
bool IsForeignComment(const KeyLine& line);

/// All that the rules find, in the order of the lines.
Findings FindAll(const Reading& reading);

// Each adds what one group of rules finds.

/// A mark at the start of the file, or an encoding, that hides the section.
///
/// @return whether nothing else loads; there is then no sense in the other rules.
bool CheckMark(const Check& check);
/// Lines as other formats have them.
///
/// @return the lines of which there is nothing more to say.
std::set<std::size_t> CheckNotation(const Check& check);
/// The section, and what stands outside it.
void CheckSections(const Check& check);
/// Lines that nothing reads.
void CheckLines(const Check& check);
/// Texts as they are written: comments, quotes, addresses, encodings.
void CheckTexts(const Check& check);
/// Each read by itself: whether it found a value, and what came of it.
void CheckValues(const Check& check);
/// Comments that silence kinds of findings, for ids that there are not.
void CheckIgnores(const Check& check);
/// Identity and switches.
void CheckPrinter(const Check& check);
void CheckModes(const Check& check);
/// Colours, ink types, slots and categories.
void CheckInks(const Check& check);
/// Numbers that are out of range, that no printer can use or that lose digits, as far as the rules
/// before it have said nothing of them.
void CheckRanges(const Check& check);
/// Whether the file is whole. It comes last, as what is missing for that reason is no mistake.
void CheckWhole(const Check& check);

}  // namespace tavrin::tool
