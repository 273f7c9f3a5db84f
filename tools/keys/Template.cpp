#include "keys/Template.h"

#include <cstdint>
#include <sstream>
#include <vector>

#include "definition/ValueConversion.h"
#include "keys/KeyFacts.h"
#include "keys/KeyText.h"

namespace tavrin::tool {

namespace {

using Form = KeyFacts::Form;
using Group = KeyFacts::Group;

constexpr std::size_t kWidth = 99;

constexpr char kHead[] =
    R"(; A printer definition with every key. As it stands it loads to the library's built-in defaults.
;
; How to use it: change the values that differ in your printer, take away the ';' before the keys
; that it needs, and make the definition with: tavrin encipher printer.ini printer.dat
;
; All keys stand in section [printer]. A ';' is a comment only at the start of a line: what follows
; a value on its line belongs to the value. Numbers have a full stop, lengths are in mm. A key that
; is missing, empty or no number takes its default without a word. The library takes values outside
; the ranges below as they are; tavrin check warns of them.

[printer]
)";

constexpr char kModesIntroduction[] =
    "There are none by default, so all of this is commented out and its values are examples. A "
    "mode of which a key below is missing or no number is left out, but it may do without its "
    "limit.";

constexpr char kInksIntroduction[] =
    "The values below are the built-in ones, commented out all the same: ink slots that stand in "
    "the file, even these, make the host's ink categories one for each ink, while those that go "
    "with the built-in slots are support, clear, white and colour. The two tables before the slots "
    "are commented out with them because the codes of all three must agree.";

/// A comment in lines of the template's width.
std::string Comment(const std::string& text) {
  std::istringstream words(text);
  std::string comment;
  std::string line = ";";
  for (std::string word; words >> word; line += ' ' + word) {
    if (line.size() + 1 + word.size() <= kWidth) continue;
    comment += line + '\n';
    line = ";";
  }
  return comment + line + '\n';
}

std::string Heading(Group group) {
  const std::string line = std::string("; ---- ") + TitleOf(group) + ' ';
  return '\n' + line + std::string(kWidth - line.size(), '-') + '\n';
}

std::string Capitalized(std::string text) {
  if (text.front() >= 'a' && text.front() <= 'z' && text.substr(0, 2) != "mm")
    text.front() = static_cast<char>(text.front() - 'a' + 'A');
  return text;
}

/// What there is to know before a value is written.
std::string Explanation(const KeyFacts& facts) {
  const KeyText text(facts);
  std::string explanation = std::string(facts.meaning) + ' ' + Capitalized(text.values);
  if (!text.usual.empty()) explanation += ", usually " + text.usual;
  if (facts.without == nullptr)
    explanation += "; default" + (text.defaultText.empty() ? ": none" : ' ' + text.defaultText);
  explanation += '.';
  if (facts.governor == nullptr && facts.value != nullptr && facts.without != nullptr)
    explanation += std::string(" Without it ") + facts.without + '.';
  if (facts.leftOut != nullptr)
    explanation += std::string(" Commented out because ") + facts.leftOut + '.';
  return explanation;
}

/// The value that a definition of defaults has, or else an example.
std::string ValueOf(const KeyFacts& facts, std::int32_t number) {
  if (facts.value == nullptr) return facts.example;
  const std::string value = facts.value(BuiltInPrinter(), number);
  return value.empty() ? facts.example : value;
}

std::string KeyLine(const KeyFacts& facts, std::int32_t number) {
  const bool isActive = facts.group < Group::Modes && facts.leftOut == nullptr;
  return (isActive ? "" : ";") + KnownKeyOfShape(facts.shape).WithNumber(number) + '=' +
         ValueOf(facts, number) + '\n';
}

/// The numbers of the entries that a governor asks for.
std::vector<std::int32_t> EntriesOf(const KeyFacts& governor) {
  const std::string value = ValueOf(governor, 0);
  std::vector<std::string> fields;
  if (governor.form == Form::Integers) Split(value, &fields);
  std::int32_t number = 0;
  std::vector<std::int32_t> numbers;
  for (const std::string& field : fields) {
    if (ParseInt(field, &number)) numbers.push_back(number);
  }
  if (!fields.empty()) return numbers;
  ParseInt(value, &number);
  for (std::int32_t i = 1; i <= (number < 1 ? 1 : number); ++i)
    numbers.push_back(i);
  return numbers;
}

/// The keys that go together for each number: what they are, then the entries.
std::string Entries(const std::vector<const KeyFacts*>& keys) {
  std::string text = "\n";
  const bool isOne = keys.size() == 1;
  for (const KeyFacts* facts : keys) {
    text += Comment((isOne ? "" : KnownKeyOfShape(facts->shape).WithNumber(1) + ": ") +
                    Explanation(*facts));
  }
  for (const std::int32_t number : EntriesOf(FactsOf(keys.front()->governor))) {
    for (const KeyFacts* facts : keys)
      text += KeyLine(*facts, number);
  }
  return text;
}

}  // namespace

std::string MakeTemplate() {
  std::string text = kHead;
  std::vector<const KeyFacts*> together;
  const auto& keys = ListKeyFacts();
  for (std::size_t i = 0; i < keys.size(); ++i) {
    const KeyFacts& facts = keys[i];
    if (i == 0 || facts.group != keys[i - 1].group) {
      text += Heading(facts.group);
      if (facts.group == Group::Modes) text += '\n' + Comment(kModesIntroduction);
      if (facts.group == Group::Inks) text += '\n' + Comment(kInksIntroduction);
    }
    if (facts.governor == nullptr) {
      text += '\n' + Comment(Explanation(facts)) + KeyLine(facts, 0);
      continue;
    }
    together.push_back(&facts);
    const bool goesOn = i + 1 < keys.size() && keys[i + 1].governor != nullptr &&
                        std::string(keys[i + 1].governor) == facts.governor;
    if (goesOn) continue;
    text += Entries(together);
    together.clear();
  }
  return text;
}

}  // namespace tavrin::tool
