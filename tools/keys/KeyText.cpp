#include "keys/KeyText.h"

#include <algorithm>
#include <stdexcept>

#include "check/Rules.h"

namespace tavrin::tool {

namespace {

using Form = KeyFacts::Form;

std::string FormText(const KeyFacts& facts) {
  switch (facts.form) {
    case Form::Text:
    case Form::Switch:
    case Form::Number:
      return facts.unit;
    case Form::Integer:
      return "integer";
    case Form::Integers:
      return facts.fields == 0 ? "mode numbers with commas between" : "two integers";
    case Form::Numbers:
      return "three numbers in mm";
    case Form::Length:
      return "mm in steps of 0.001";
  }
  return {};
}

std::string ValuesText(const KeyFacts& facts) {
  if (facts.range.IsUnbounded()) return FormText(facts);
  if (facts.form == Form::Text)
    return std::string(facts.unit) + " of " + facts.range.Text() + " bytes";
  return FormText(facts) + ", " + facts.range.Text();
}

std::string UsualText(const KeyFacts& facts) {
  if (facts.usual.IsUnbounded()) return {};
  const bool canBeNone = facts.range.Contains(0.0) && facts.usual.least > 0.0;
  return (canBeNone ? "0 or " : "") + facts.usual.Text();
}

std::string WithoutText(const KeyFacts& facts, const std::string& defaultText) {
  if (facts.without != nullptr) return facts.without;
  return defaultText.empty() ? "none" : defaultText;
}

}  // namespace

KeyText::KeyText(const KeyFacts& facts)
    : values(ValuesText(facts)),
      usual(UsualText(facts)),
      defaultText(facts.without == nullptr ? facts.value(BuiltInPrinter(), 0) : ""),
      without(WithoutText(facts, defaultText)) {
}

KnownKey KnownKeyOfShape(const std::string& shape) {
  const auto known = ListKnownKeys();
  const auto found = std::find_if(known.begin(), known.end(),
                                  [&](const KnownKey& key) { return key.Shape() == shape; });
  if (found == known.end()) throw std::logic_error("nothing reads the key " + shape);
  return *found;
}

const char* TitleOf(KeyFacts::Group group) {
  static constexpr const char* kTitles[] = {"Identity",       "Dimensions",  "Support", "Switches",
                                            "Cutting margin", "Print modes", "Inks"};
  return kTitles[static_cast<std::size_t>(group)];
}

}  // namespace tavrin::tool
