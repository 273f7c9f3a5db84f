#include <algorithm>
#include <cctype>
#include <cmath>
#include <cstdlib>
#include <cwchar>
#include <iterator>
#include <limits>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "check/JudgedKeys.h"
#include "check/LineEdits.h"
#include "check/NumberMeaning.h"
#include "check/Rules.h"
#include "check/ValueRemark.h"
#include "definition/IntegerConversion.h"
#include "definition/TextConversion.h"
#include "definition/ValueConversion.h"
#include "keys/KeyFacts.h"

namespace tavrin::tool {

namespace {

using Form = KeyFacts::Form;
using Kind = WatchedRead::Kind;

constexpr char kRestHasNoEffect[] = "the rest has no effect";

/// As values are measured: in units of UTF-16.
std::size_t CharactersOf(const std::wstring& text) {
  const auto isPair = [](wchar_t c) { return static_cast<char32_t>(c) >> 16 != 0; };
  return text.size() + static_cast<std::size_t>(std::count_if(text.begin(), text.end(), isPair));
}

/// Where in a field the number ends that it begins with; the field's begin where there is none.
/// What precedes the number is white space, no-break spaces included.
///
/// @param number receives the number as written.
std::wstring::const_iterator EndOfNumber(const std::wstring& field, bool isInteger,
                                         std::string* number) {
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
  *number = text.substr(0, static_cast<std::size_t>(after - text.c_str()));
  return begin + (after - text.c_str());
}

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
  void CheckLength() const;
  /// What stands behind a number or a list.
  ///
  /// @return whether anything does.
  bool CheckRemark() const;
  /// Says once what several fields of a list have alike.
  bool ExplainFields(const std::vector<std::string>& fields, bool isInteger) const;
  /// The meaning as far as it can be what the printer is to get.
  NumberMeaning Plausible(NumberMeaning meaning) const;
  /// The code that a slot names by its name.
  std::optional<NumberMeaning> MeaningOfName(const std::wstring& field) const;
  /// @param isKnown whether a field before it is no number either, which is said once.
  /// @return whether it is none, and what was meant cannot be told.
  bool CheckField(const std::wstring& field, bool isInteger, std::size_t index,
                  bool isKnown = false) const;
  /// Says what was meant where that can be told, with the remedy.
  bool Explain(const std::optional<NumberMeaning>& supposed, std::size_t index,
               const std::string& effect) const;
  WantedNumber Wanted(bool isInteger, bool isInList) const;
  void CheckSize(const std::wstring& field, double number) const;
  /// Of the code or name of a table's entry, the line of the other; null when it has none.
  const KeyLine* OtherHalf() const;
  /// Lengths are held in whole µm.
  bool IsLength() const { return facts_.form == Form::Length; }
  /// Whether the printer gets an empty text when the key is missing.
  bool IsEmptyWithout() const {
    return read_.kind == Kind::Text && Outcome() == "the printer gets " + Quoted("");
  }
  std::string Outcome() const { return facts_.Outcome(*check_.reading.config, number_); }
  Finding& Warn(const char* rule, const std::string& what, const std::string& effect,
                const std::string& remedy) const {
    return check_.Warn(rule, read_.key, what, effect, remedy);
  }

  const Check& check_;
  const WatchedRead& read_;
  const KeyLine* line_;
  std::int32_t number_ = 0;
  const KeyFacts& facts_;
};

void ValueCheck::CheckMissing() const {
  const std::string shape = facts_.shape;
  if (line_ != nullptr && !line_->value.empty()) {
    Warn("long-value", "nothing of so long a value is read", Outcome(),
         "shorten it to 260 characters");
  } else if (line_ != nullptr) {
    if (IsEmptyWithout() && !line_->hasNul) return;  // it is what is written
    Warn("no-value", "a key without a value counts as missing", Outcome(), "write a value");
  } else if (facts_.governor == nullptr || shape == "Mode#LimitedContinuous") {
    check_.Add("default-used", Severity::Note, read_.key, "this key is missing", Outcome(),
               "write it if something else is meant");
  } else if (shape.find("Color#") != 0 && shape.find("InkType#") != 0) {
    Warn("key-missing", std::string(facts_.governor) + " asks for this key, which is missing",
         Outcome(), "write it");
  } else if (const KeyLine* half = OtherHalf()) {
    check_.Add("key-missing", half->number, Severity::Warning, read_.key,
               half->name + " needs this key, which is missing", Outcome(), "write it");
  }
}

const KeyLine* ValueCheck::OtherHalf() const {
  const std::string entry = read_.key.substr(0, read_.key.size() - 4);
  const bool isCode = read_.key == entry + "Code";
  return check_.reading.lines.Find(entry + (isCode ? "Name" : "Code"));
}

void ValueCheck::CheckText() const {
  CheckLength();
  if (line_ != nullptr && line_->hasNul)
    Warn("nul", "a NUL ends the name or the value", kRestHasNoEffect, "remove it");
  if (facts_.form == Form::Text && NarrowCopy(read_.text).empty()) {
    Warn("unencodable", "the value has a character that the user's encoding lacks",
         "the printer gets an empty text", "do without that character");
  }
}

void ValueCheck::CheckLength() const {
  constexpr std::size_t kLongest = 260;
  const std::size_t read = CharactersOf(read_.text);
  std::size_t written = read;
  if (line_ != nullptr) {
    written =
        check_.reading.lines.IsUtf16() ? line_->value.size() : CharactersOf(WideCopy(line_->value));
  }
  if (written <= kLongest) return;
  Warn("long-value", "the value is longer than 260 characters",
       written > read ? "only the first " + std::to_string(read) + " are read"
                      : "it is read beyond what definitions may have",
       "shorten it");
}

void ValueCheck::CheckFields() const {
  if (CheckRemark()) return;
  if (read_.kind != Kind::Text) {
    CheckField(read_.text, read_.kind == Kind::Integer, kWholeValue);
    return;
  }
  const Form form = facts_.form;
  if (form == Form::Text) return;
  const bool isInteger = form == Form::Integer || form == Form::Integers;
  const std::string text = NarrowCopy(read_.text);
  std::vector<std::string> fields = {text};
  const bool isList = form == Form::Integers || form == Form::Numbers;
  if (isList) Split(text, &fields);
  const std::size_t wanted = facts_.fields == 0 ? fields.size() : facts_.fields;
  const std::string count =
      "the list has " + Counted(fields.size(), "field") + " in place of " + std::to_string(wanted);
  const bool isLong = !check_.reading.lines.IsUtf16() && text.size() > 260;
  if (isList && !isLong &&
      Explain(MeaningOfList(read_.text, facts_.fields, isInteger), kWholeValue,
              fields.size() < wanted ? Outcome() : kRestHasNoEffect))
    return;
  if (fields.size() < wanted) {
    Warn("fields-missing", count, Outcome(), "write all of them");
    return;
  }
  if (fields.size() > wanted) {
    Warn("fields-beyond", count, kRestHasNoEffect, "write those that are meant");
    return;
  }
  if (isList && ExplainFields(fields, isInteger)) return;
  bool isNoNumber = false;
  for (std::size_t i = 0; i < wanted; ++i)
    isNoNumber = CheckField(WideCopy(fields[i]), isInteger, isList ? i : kWholeValue, isNoNumber) ||
                 isNoNumber;
}

bool ValueCheck::ExplainFields(const std::vector<std::string>& fields, bool isInteger) const {
  std::optional<NumberMeaning> whole;
  std::size_t count = 0;
  std::string list;
  for (const std::string& field : fields) {
    const auto meaning = MeaningOf(WideCopy(field), Wanted(isInteger, true));
    const bool isMeant = meaning && !meaning->number.empty();
    list += (list.empty() ? "" : ",") + (isMeant ? meaning->number : std::string(Trim(field)));
    if (!isMeant) continue;
    ++count;
    if (!whole) whole = meaning;
    whole->certainty = std::min(whole->certainty, meaning->certainty);
  }
  if (count < 2) return false;
  whole->what += ", likewise " + Counted(count - 1, "more field");
  whole->number = list;
  return Explain(whole, kWholeValue, kRestHasNoEffect);
}

bool ValueCheck::CheckRemark() const {
  if (facts_.form == Form::Text || line_ == nullptr || !check_.reading.Confirms(*line_))
    return false;
  const bool isList = facts_.form == Form::Integers || facts_.form == Form::Numbers;
  const std::string_view value =
      Trim(std::string_view(line_->text).substr(line_->text.find('=') + 1));
  const auto remark = RemarkIn(value, false);
  if (!remark || (isList && value[remark->mark] == ',')) return false;
  std::vector<std::string> fields = {std::string(value.substr(0, remark->end))};
  if (isList) Split(std::string(fields.front()), &fields);
  const bool areNumbers = std::all_of(fields.begin(), fields.end(), [](const std::string& field) {
    double number = 0.0;
    std::string written;
    const std::string trimmed(Trim(field));
    EndOfNumber(WideCopy(trimmed), false, &written);
    return ParseDouble(trimmed, &number) && written == trimmed;
  });
  const bool goesOn =
      !remark->text.empty() && std::isdigit(static_cast<unsigned char>(remark->text.front())) != 0;
  if (!areNumbers || goesOn || (facts_.fields != 0 && fields.size() != facts_.fields)) return false;
  AddRemark(check_, *line_, read_.key, static_cast<std::size_t>(value.data() - line_->text.data()),
            *remark);
  return true;
}

WantedNumber ValueCheck::Wanted(bool isInteger, bool isInList) const {
  const std::string shape = facts_.shape;
  const bool isSwitch = shape == "AntiAliasing" || shape == "Reverse" ||
                        shape == "AutoCleaningEnabled" || shape == "NCUEnabled";
  const char* off = isSwitch ? "0" : shape == "White_White" ? "100" : nullptr;
  return {isInteger, shape == "SupportExtendAngle", isInList, off};
}

NumberMeaning ValueCheck::Plausible(NumberMeaning meaning) const {
  std::vector<std::string> fields;
  Split(meaning.number, &fields);
  const bool isUsual = std::all_of(fields.begin(), fields.end(), [this](const std::string& field) {
    double number = 0.0;
    ParseDouble(field, &number);
    return facts_.range.Contains(number) && (number == 0.0 || facts_.usual.Contains(number));
  });
  if (isUsual) return meaning;
  if (meaning.certainty == Certainty::Likely) meaning.number.clear();
  meaning.certainty = std::min(meaning.certainty, Certainty::Likely);
  return meaning;
}

bool ValueCheck::Explain(const std::optional<NumberMeaning>& supposed, std::size_t index,
                         const std::string& effect) const {
  if (!supposed) return false;
  const NumberMeaning meaning = Plausible(*supposed);
  Finding& finding =
      Warn(meaning.rule, meaning.what, effect,
           meaning.number.empty() ? "write the number that is meant" : "write " + meaning.number);
  if (!meaning.number.empty() && line_ != nullptr && check_.reading.Confirms(*line_))
    AddValueEdit(*line_, index, meaning.number, meaning.certainty, &finding);
  return true;
}

std::optional<NumberMeaning> ValueCheck::MeaningOfName(const std::wstring& field) const {
  const std::string shape = facts_.shape;
  const PrinterConfig& config = *check_.reading.config;
  const InkTable* table = shape == "ColorCodeInkSlot#"     ? &config.Colors
                          : shape == "InkTypeCodeInkSlot#" ? &config.InkTypes
                                                           : nullptr;
  if (table == nullptr) return std::nullopt;
  const std::string name = NarrowCopy(field);
  for (std::size_t i = 0; i < table->size(); ++i) {
    const IdentifiableData& entry = (*table)[i];
    if (Folded(entry.name) == Folded(name))
      return NumberMeaning{"no-number", Quoted(name) + " is the name, not the code",
                           std::to_string(entry.code), Certainty::Certain};
  }
  return std::nullopt;
}

bool ValueCheck::CheckField(const std::wstring& field, bool isInteger, std::size_t index,
                            bool isKnown) const {
  std::int32_t integer = 0;
  double number = 0.0;
  std::string written;
  const auto end = EndOfNumber(field, isInteger, &written);
  const std::string quoted = Quoted(NarrowCopy(field));
  const bool converts = isInteger ? ParseInt(field, &integer) : ParseDouble(field, &number);
  const auto isBlank = [](wchar_t c) { return c == L' ' || c == L'\t'; };
  const bool isWhole = converts && std::all_of(end, field.end(), isBlank);
  if (!converts && Explain(MeaningOfName(field), index, Outcome())) return false;
  // Of UTF-16 every machine reads the same.
  const bool isForeign =
      !check_.reading.lines.IsUtf16() &&
      std::any_of(field.begin(), field.end(), [](wchar_t c) { return c >= 0x80; });
  if ((!isWhole || isForeign) &&
      Explain(MeaningOf(field, Wanted(isInteger, index != kWholeValue)), index,
              converts ? "the printer gets " + written : Outcome()))
    return false;
  if (!converts && isKnown) return true;
  if (!converts) {
    const bool isNumber = !isInteger && !written.empty();
    Warn(isNumber ? "number-range" : "no-number",
         quoted + (isInteger  ? " is no 32-bit integer"
                   : isNumber ? " is out of the range of numbers"
                              : " is no number"),
         Outcome(),
         isInteger  ? "write an integer"
         : isNumber ? "write the number that is meant"
                    : "write a number with a full stop before its decimals");
    return true;
  }
  if (!isInteger) CheckSize(field, number);
  if (isWhole) return false;
  const std::string read = Quoted(written);
  Warn("number-in-part", "only " + read + " of " + quoted + " is read", kRestHasNoEffect,
       "write the number that is meant");
  return false;
}

/// Numbers that are held as they are read; hosts get the build volume in whole µm modulo 2^32.
void ValueCheck::CheckSize(const std::wstring& field, double number) const {
  const std::string quoted = Quoted(NarrowCopy(field));
  if (facts_.form == Form::Numbers) {
    const double size = std::trunc(number * kMicrometresPerMillimetre);
    const std::uint32_t handedOut = TruncateToUint32(size);
    if (size == handedOut && size > 0.0) return;
    Warn("value-range", quoted + " is not in the range of 0.001 to 4294967.295",
         "hosts get " + std::to_string(handedOut) + " um", "write it in mm");
  } else if (!IsLength() && !std::isfinite(number)) {
    Warn("value-range", quoted + " is not finite", Outcome(), "write a finite number");
  }
}

void ValueCheck::CheckRange() const {
  constexpr std::int32_t kOverflow = std::numeric_limits<std::int32_t>::min();
  if (!IsLength() || !read_.converted || ToMicrometres(read_.number) != kOverflow) return;
  Warn("value-range", "the length is out of range", "the printer gets -2147483.648 mm",
       "write it in mm");
}

}  // namespace

void CheckValues(const Check& check) {
  const JudgedKeys judged(check);
  for (const WatchedRead& read : check.reading.reads) {
    const ValueCheck value(check, read);
    if (read.found) {
      value.CheckText();
      if (judged.Contains(read.key)) continue;
      value.CheckFields();
      value.CheckRange();
    } else if (check.reading.loads || read.key != "Version") {
      value.CheckMissing();
    }
  }
}

}  // namespace tavrin::tool
