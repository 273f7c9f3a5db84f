#include <algorithm>
#include <cstdlib>
#include <limits>
#include <string>

#include "check/KeyFacts.h"
#include "check/Rules.h"
#include "definition/IntegerConversion.h"
#include "definition/TextConversion.h"
#include "definition/ValueConversion.h"

namespace tavrin::tool {

namespace {

using Form = KeyFacts::Form;
using Kind = WatchedRead::Kind;

constexpr char kRestHasNoEffect[] = "the rest has no effect";

/// Looks at one read.
class ValueCheck {
 public:
  ValueCheck(const Check& check, const WatchedRead& read)
      : check_(check),
        read_(read),
        line_(check.reading.lines.Find(read.key)),
        facts_(FactsOf(check.reading.KnownKeyOf(read.key, &number_)->Shape())) {}

  void CheckMissing() const;
  void CheckText() const;
  void CheckFields() const;
  void CheckRange() const;

 private:
  void CheckField(const std::wstring& field, bool isInteger) const;
  void CheckRest(const std::wstring& field, bool isInteger) const;
  /// Of the code or name of a table's entry, the line of the other; null when it has none.
  const KeyLine* OtherHalf() const;
  std::string Outcome() const { return facts_.Outcome(*check_.reading.config, number_); }
  void Warn(const std::string& what, const std::string& effect, const std::string& remedy) const {
    check_.Warn(read_.key, what, effect, remedy);
  }

  const Check& check_;
  const WatchedRead& read_;
  const KeyLine* line_;
  std::int32_t number_ = 0;
  const KeyFacts& facts_;
};

void ValueCheck::CheckMissing() const {
  const std::string shape = facts_.shape;
  if (line_ != nullptr) {
    Warn("a key without a value counts as missing", Outcome(), "write a value");
  } else if (facts_.governor == nullptr || shape == "Mode#LimitedContinuous") {
    check_.Add(Severity::Note, read_.key, "this key is missing", Outcome(),
               "write it if something else is meant");
  } else if (shape.find("Color#") != 0 && shape.find("InkType#") != 0) {
    Warn(std::string(facts_.governor) + " asks for this key, which is missing", Outcome(),
         "write it");
  } else if (const KeyLine* half = OtherHalf()) {
    check_.Add(half->number, Severity::Warning, read_.key,
               half->name + " needs this key, which is missing", Outcome(), "write it");
  }
}

const KeyLine* ValueCheck::OtherHalf() const {
  const std::string entry = read_.key.substr(0, read_.key.size() - 4);
  const bool isCode = read_.key == entry + "Code";
  return check_.reading.lines.Find(entry + (isCode ? "Name" : "Code"));
}

void ValueCheck::CheckText() const {
  constexpr std::size_t kLongest = 260;
  constexpr wchar_t kReplacement = 0xFFFD;
  const std::string written = line_ == nullptr ? "" : line_->value;
  if (read_.text.size() > kLongest) {
    Warn("the value is longer than 260 characters",
         written.size() > read_.text.size()
             ? "only " + std::to_string(read_.text.size()) + " of them are read"
             : "it is read beyond what definitions may have",
         "shorten it");
  }
  if (read_.text.find(kReplacement) != std::wstring::npos &&
      written.find("\xEF\xBF\xBD") == std::string::npos) {
    Warn("the value has bytes that are no character of the user's encoding",
         "the printer gets a replacement character for each", "save the file in that encoding");
  } else if (read_.kind == Kind::Text && NarrowCopy(read_.text).empty()) {
    Warn("the value has a character that the user's encoding lacks",
         "the printer gets an empty text", "do without that character");
  }
}

void ValueCheck::CheckFields() const {
  if (read_.kind != Kind::Text) {
    CheckField(read_.text, read_.kind == Kind::Integer);
    return;
  }
  const Form form = facts_.form;
  if (form == Form::Text) return;
  const bool isInteger = form == Form::Integer || form == Form::Integers;
  const std::string text = NarrowCopy(read_.text);
  std::vector<std::string> fields = {text};
  if (form == Form::Integers || form == Form::Numbers) Split(text, &fields);
  const std::size_t wanted = facts_.fields == 0 ? fields.size() : facts_.fields;
  const std::string count = "the list has " + std::to_string(fields.size()) +
                            " fields in place of " + std::to_string(wanted);
  if (fields.size() < wanted) {
    Warn(count, Outcome(), "write all of them");
    return;
  }
  for (std::size_t i = 0; i < wanted; ++i)
    CheckField(WideCopy(fields[i]), isInteger);
  if (fields.size() > wanted) Warn(count, kRestHasNoEffect, "remove the rest");
}

void ValueCheck::CheckField(const std::wstring& field, bool isInteger) const {
  std::int32_t integer = 0;
  double number = 0.0;
  if (isInteger ? !ParseInt(field, &integer) : !ParseDouble(field, &number)) {
    Warn(Quoted(NarrowCopy(field)) + (isInteger ? " is no 32-bit integer" : " is no number"),
         Outcome(),
         isInteger ? "write an integer" : "write a number with a full stop before its decimals");
    return;
  }
  CheckRest(field, isInteger);
}

/// What precedes the number of a field that has one is white space, no-break spaces included.
void ValueCheck::CheckRest(const std::wstring& field, bool isInteger) const {
  const auto begin =
      std::find_if(field.begin(), field.end(), [](wchar_t c) { return c > L' ' && c < 0x7F; });
  const std::string text(begin,
                         std::find_if(begin, field.end(), [](wchar_t c) { return c >= 0x7F; }));
  char* after = nullptr;
  if (isInteger) {
    std::strtol(text.c_str(), &after, 10);
  } else {
    std::strtod(text.c_str(), &after);
  }
  const auto length = after - text.c_str();
  const auto isBlank = [](wchar_t c) { return c == L' ' || c == L'\t'; };
  if (std::all_of(begin + length, field.end(), isBlank)) return;
  const std::string read = Quoted(text.substr(0, static_cast<std::size_t>(length)));
  Warn("only " + read + " of " + Quoted(NarrowCopy(field)) + " is read", kRestHasNoEffect,
       "write " + read + " or the number that is meant");
}

/// Lengths are held in whole µm; the angle is the one number that is no length.
void ValueCheck::CheckRange() const {
  constexpr std::int32_t kOverflow = std::numeric_limits<std::int32_t>::min();
  if (read_.kind != Kind::Number || !read_.converted || read_.key == "SupportExtendAngle") return;
  if (ToMicrometres(read_.number) != kOverflow) return;
  Warn("the length is out of range", "the printer gets -2147483.648 mm", "write it in mm");
}

}  // namespace

void CheckValues(const Check& check) {
  for (const WatchedRead& read : check.reading.reads) {
    const ValueCheck value(check, read);
    if (read.found) {
      value.CheckText();
      value.CheckFields();
      value.CheckRange();
    } else if (check.reading.loads || read.key != "Version") {
      value.CheckMissing();
    }
  }
}

}  // namespace tavrin::tool
