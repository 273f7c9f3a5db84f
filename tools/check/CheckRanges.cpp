#include <algorithm>
#include <cmath>
#include <cstdint>
#include <cstdio>
#include <set>
#include <string>
#include <vector>

#include "check/JudgedKeys.h"
#include "check/Rules.h"
#include "definition/IntegerConversion.h"
#include "definition/TextConversion.h"
#include "definition/ValueConversion.h"
#include "keys/KeyFacts.h"
#include "keys/KeyText.h"

namespace tavrin::tool {

namespace {

using Form = KeyFacts::Form;

struct Unit {
  const char* name;
  double inMillimetres;
};

constexpr Unit kOtherUnits[] = {{"um", 0.001}, {"cm", 10.0}, {"m", 1000.0}};

/// A length in mm that is read as this many um. Some numbers of three decimals are, as doubles, a
/// little less than they say; one more digit lifts those.
std::string LengthText(std::int32_t micrometres) {
  const double length = micrometres / kMicrometresPerMillimetre;
  double number = 0.0;
  if (ParseDouble(NumberText(length), &number) && ToMicrometres(number) == micrometres)
    return NumberText(length);
  char lifted[32];
  std::snprintf(lifted, sizeof lifted, "%.3f0001", length);
  return lifted;
}

std::string Received(std::int32_t micrometres) {
  return "the printer gets " + NumberText(micrometres / kMicrometresPerMillimetre) + " mm";
}

/// Looks at the numbers of one read.
class RangeCheck {
 public:
  RangeCheck(const Check& check, const WatchedRead& read)
      : check_(check), read_(read), facts_(FactsOf(ShapeOf(check, read))) {
    if (facts_.form == Form::Text || facts_.form == Form::Switch) return;
    if (facts_.form == Form::Integers || facts_.form == Form::Numbers) {
      Split(NarrowCopy(read.text), &fields_);
    } else {
      fields_ = {NarrowCopy(read.text)};
    }
    if (facts_.fields != 0 && fields_.size() > facts_.fields) fields_.resize(facts_.fields);
    for (std::string& field : fields_) {
      field.erase(0, field.find_first_not_of(" \t"));
      field.erase(field.find_last_not_of(" \t") + 1);
      numbers_.push_back(0.0);
      ParseDouble(field, &numbers_.back());
    }
  }

  void CheckAll() const {
    for (const auto check :
         {&RangeCheck::CheckHard, &RangeCheck::CheckUsual, &RangeCheck::CheckDigits}) {
      if ((this->*check)()) return;
    }
  }

 private:
  static std::string ShapeOf(const Check& check, const WatchedRead& read) {
    std::int32_t number = 0;
    return check.reading.KnownKeyOf(read.key, &number)->Shape();
  }

  /// @return whether there was anything to find; so do the next two.
  bool CheckHard() const;
  bool CheckUsual() const;
  bool CheckDigits() const;

  bool IsUsual(double number) const { return number == 0.0 || facts_.usual.Contains(number); }
  /// What is left of such a length tells more than its unit.
  bool IsCutToZero(double number) const {
    return facts_.form == Form::Length && ToMicrometres(number) == 0;
  }
  std::string Effect() const;
  bool IsLength() const { return std::string(facts_.unit) == "mm"; }
  /// Of the units that the value may be in, the one that makes it usual; null where none does or
  /// more than one.
  const Unit* OtherUnit() const;
  std::string InMillimetres(const Unit& unit) const;
  void Locate(Finding* finding, std::size_t field, const std::string& replacement) const;

  const Check& check_;
  const WatchedRead& read_;
  const KeyFacts& facts_;
  std::vector<std::string> fields_;
  std::vector<double> numbers_;
};

bool RangeCheck::CheckHard() const {
  for (std::size_t i = 0; i < numbers_.size(); ++i) {
    if (facts_.range.Contains(numbers_[i])) continue;
    Finding& finding =
        check_.Warn("out-of-range", read_.key, fields_[i] + " is out of range", facts_.beyond,
                    "write a number in range: " + facts_.range.Text());
    Locate(&finding, i, {});
    return true;
  }
  return false;
}

bool RangeCheck::CheckUsual() const {
  for (std::size_t i = 0; i < numbers_.size(); ++i) {
    if (IsUsual(numbers_[i]) || IsCutToZero(numbers_[i])) continue;
    const Unit* unit = IsLength() ? OtherUnit() : nullptr;
    Finding& finding = check_.Warn(
        "implausible", read_.key,
        fields_[i] + ' ' + facts_.unit + " is beyond what is usual, " + KeyText(facts_).usual,
        Effect(),
        unit != nullptr ? "write " + InMillimetres(*unit) + " if it is in " + unit->name
                        : std::string("look whether it is in ") + facts_.unit);
    if (unit != nullptr) finding.certainty = Certainty::Likely;
    Locate(&finding, i, {});
    return true;
  }
  return false;
}

std::string RangeCheck::Effect() const {
  if (facts_.without == nullptr) return facts_.Outcome(*check_.reading.config, 0);
  return Received(ToMicrometres(numbers_.front()));
}

const Unit* RangeCheck::OtherUnit() const {
  const Unit* other = nullptr;
  for (const Unit& unit : kOtherUnits) {
    const bool fits = std::all_of(numbers_.begin(), numbers_.end(), [&](double number) {
      const double micrometres = number * unit.inMillimetres * kMicrometresPerMillimetre;
      return IsUsual(number * unit.inMillimetres) &&
             std::abs(micrometres - std::round(micrometres)) < 0.001;
    });
    if (!fits) continue;
    if (other != nullptr) return nullptr;
    other = &unit;
  }
  return other;
}

std::string RangeCheck::InMillimetres(const Unit& unit) const {
  std::string text;
  for (const double number : numbers_) {
    const double micrometres = number * unit.inMillimetres * kMicrometresPerMillimetre;
    text +=
        (text.empty() ? "" : ",") + LengthText(static_cast<std::int32_t>(std::lround(micrometres)));
  }
  return text;
}

/// Lengths are cut to whole um. What is lost below a thousandth of that is no loss.
bool RangeCheck::CheckDigits() const {
  if (facts_.form != Form::Length && facts_.form != Form::Numbers) return false;
  bool isAny = false;
  for (std::size_t i = 0; i < numbers_.size(); ++i) {
    constexpr double kNoLoss = 0.001;
    const double written = numbers_[i] * kMicrometresPerMillimetre;
    const std::int32_t kept = ToMicrometres(numbers_[i]);
    if (written - kept < kNoLoss) continue;
    isAny = true;
    const auto nearest = std::max(static_cast<std::int32_t>(std::lround(written)), 1);
    const bool isWhole = std::abs(written - nearest) < kNoLoss;
    const std::string length = LengthText(nearest);
    const bool isNear = IsUsual(nearest / kMicrometresPerMillimetre);
    Finding& finding =
        check_.Warn("digits-lost", read_.key,
                    fields_[i] + (isWhole ? " is held as a little less and cut to whole um"
                                          : " is cut to whole um"),
                    Received(kept),
                    isWhole  ? "write " + length
                    : isNear ? "write " + length + " if that is near enough"
                             : "look whether it is in mm");
    finding.certainty = isWhole ? Certainty::Certain : isNear ? Certainty::Likely : Certainty::None;
    Locate(&finding, i, isWhole ? length : "");
  }
  return isAny;
}

/// Where the field stands, and what takes its place if that is certain.
void RangeCheck::Locate(Finding* finding, std::size_t field, const std::string& replacement) const {
  const KeyLine* line = check_.reading.lines.Find(read_.key);
  std::size_t column = std::string::npos;
  if (line != nullptr && line->number == finding->line) {
    column = line->text.find('=');
    for (std::size_t i = 0; i < field && column != std::string::npos; ++i)
      column = line->text.find(',', column + 1);
    if (column != std::string::npos) column = line->text.find(fields_[field], column + 1);
  }
  if (column == std::string::npos) {
    if (finding->certainty == Certainty::Certain) finding->certainty = Certainty::Likely;
    return;
  }
  finding->column = column + 1;
  if (!replacement.empty())
    finding->edits = {{finding->line, column, fields_[field].size(), replacement}};
}

/// Whether the key has a value that can be trusted where values are compared.
bool IsSound(const Check& check, const JudgedKeys& judged, const std::string& key) {
  const WatchedRead* read = check.reading.Find(key);
  return read != nullptr && read->found && !judged.Contains(key);
}

void CheckSides(const Check& check, const JudgedKeys& judged) {
  if (!IsSound(check, judged, "PrinterSize")) return;
  const PrinterConfig& config = *check.reading.config;
  const M3DVector& size = config.PrinterSize;
  constexpr double kFarApart = 100.0;
  const auto [least, most] = std::minmax({size.x, size.y, size.z});
  if (most < kFarApart * least) return;
  check.Warn("implausible", "PrinterSize",
             "one side is " + NumberText(std::floor(most / least)) + " times another",
             FactsOf("PrinterSize").Outcome(config, 0), "write all three sides in mm");
}

void CheckMargin(const Check& check, const JudgedKeys& judged) {
  if (!IsSound(check, judged, "PrintMargin") || judged.Contains("PrinterSize")) return;
  const PrinterConfig& config = *check.reading.config;
  const double margin = config.PrintMargin / kMicrometresPerMillimetre;
  const double side = std::min(config.PrinterSize.x, config.PrinterSize.y);
  if (2.0 * margin < side) return;
  check.Warn("implausible", "PrintMargin",
             "two margins of " + NumberText(margin) + " mm leave nothing of a side of " +
                 NumberText(side) + " mm",
             "the printer has no room to print in", "write less than half of the side");
}

void CheckColorThickness(const Check& check, const JudgedKeys& judged) {
  std::set<std::int32_t> seen;
  for (const auto& mode : check.reading.config->Modes) {
    const std::string slice = Numbered("Mode#SliceSize", mode->Number);
    const std::string color = Numbered("Mode#ColorThickness", mode->Number);
    if (mode->ColorThickness <= 0 || mode->SliceSize <= mode->ColorThickness ||
        !IsSound(check, judged, slice) || !IsSound(check, judged, color) ||
        !seen.insert(mode->Number).second)
      continue;
    check
        .Warn("implausible", color,
              "the colour layer is thinner than a slice of " +
                  NumberText(mode->SliceSize / kMicrometresPerMillimetre) + " mm",
              kAsItIs, "look whether it and " + slice + " are swapped")
        .certainty = Certainty::Likely;
  }
}

}  // namespace

void CheckRanges(const Check& check) {
  const JudgedKeys judged(check);
  for (const WatchedRead& read : check.reading.reads) {
    if (read.found && !judged.Contains(read.key)) RangeCheck(check, read).CheckAll();
  }
  const JudgedKeys judgedByNow(check);
  CheckSides(check, judgedByNow);
  CheckMargin(check, JudgedKeys(check));
  CheckColorThickness(check, judgedByNow);
}

}  // namespace tavrin::tool
