#include "check/NumberMeaning.h"

#include <algorithm>
#include <cmath>
#include <cstdio>
#include <cstdlib>
#include <iterator>
#include <limits>
#include <map>
#include <regex>

#include "check/LineIndex.h"
#include "check/Rules.h"
#include "definition/TextConversion.h"

namespace tavrin::tool {

namespace {

using Meaning = std::optional<NumberMeaning>;

/// The zeros of the scripts whose digits the Windows runtime knows.
constexpr wchar_t kZeros[] = {0x0660, 0x06F0, 0x0966, 0x09E6, 0x0A66, 0x0AE6,
                              0x0B66, 0x0C66, 0x0CE6, 0x0D66, 0x0E50, 0x0ED0,
                              0x0F20, 0x1040, 0x17E0, 0x1810, 0xFF10};

std::string InAscii(wchar_t c) {
  static const std::map<wchar_t, const char*> kLike = {
      {0x00B5, "u"},  {0x03BC, "u"}, {0x2212, "-"}, {0x2013, "-"},   {0x00A0, " "},
      {0x202F, " "},  {0x2009, " "}, {0x00D7, "x"}, {0x00B0, "deg"}, {0x2033, "\""},
      {0x201D, "\""}, {0x2019, "'"}, {0xFF0E, "."}, {0xFF0C, ","},   {0x00B7, "."},
      {0x066B, "."},  {0x060C, ","}, {0x3001, ","}, {0xFF1B, ";"},   {0x2044, "/"},
      {0x200B, ""},   {0x200C, ""},  {0x200D, ""},  {0x2060, ""},    {0xFEFF, ""}};
  if (c > 0 && c < 0x80) return std::string(1, static_cast<char>(c));
  const auto zero = std::find_if(std::begin(kZeros), std::end(kZeros),
                                 [c](wchar_t first) { return c >= first && c <= first + 9; });
  if (zero != std::end(kZeros)) return std::string(1, static_cast<char>('0' + (c - *zero)));
  const auto like = kLike.find(c);
  return like == kLike.end() ? "?" : like->second;
}

/// The text in ASCII, without the blanks round it.
std::string InAscii(const std::wstring& text) {
  std::string ascii;
  for (const wchar_t c : text)
    ascii += InAscii(c);
  const std::size_t begin = std::min(ascii.find_first_not_of(" \t"), ascii.size());
  return ascii.substr(begin, ascii.find_last_not_of(" \t") - begin + 1);
}

/// In quotes, unless the user's encoding lacks a character of it.
std::string Named(const std::wstring& text) {
  const std::string narrow = NarrowCopy(text);
  return narrow.empty() && !text.empty() ? "the value" : Quoted(narrow);
}

bool IsNumber(const std::string& text, bool isInteger) {
  static const std::regex kInteger("[+-]?\\d+");
  static const std::regex kNumber("[+-]?(\\d+\\.?\\d*|\\.\\d+)");
  return std::regex_match(text, isInteger ? kInteger : kNumber);
}

/// As a definition has it; empty when it is none that can be written.
std::string Written(double number, bool isInteger) {
  if (!std::isfinite(number)) return {};
  if (isInteger && (number != std::trunc(number) || std::fabs(number) > 2147483647.0)) return {};
  char text[32];
  std::snprintf(text, sizeof text, isInteger ? "%.0f" : "%.9g", number);
  return text;
}

std::string Without(std::string text, const std::string& characters) {
  text.erase(std::remove_if(text.begin(), text.end(),
                            [&](char c) { return characters.find(c) != std::string::npos; }),
             text.end());
  return text;
}

std::string Replaced(std::string text, char from, char to) {
  std::replace(text.begin(), text.end(), from, to);
  return text;
}

double NumberOf(const std::string& text) {
  return std::strtod(text.c_str(), nullptr);
}

/// One text that is to be a number. The readers look at it in turn.
class Field {
 public:
  Field(const std::wstring& field, const WantedNumber& wanted)
      : quoted_(Named(field)),
        text_(InAscii(field)),
        isForeign_(std::any_of(field.begin(), field.end(), [](wchar_t c) { return c >= 0x80; })),
        wanted_(wanted) {}

  Meaning Read();

 private:
  Meaning AsSwitch();
  Meaning AsOtherCharacters();
  Meaning AsOtherNotation();
  Meaning AsGroups();
  Meaning AsDecimalComma();
  Meaning AsQuantity();
  Meaning AsFraction();
  Meaning AsPieces();
  /// Patterns are compiled once.
  bool Matches(const char* pattern) {
    static std::map<std::string, std::regex> compiled;
    const auto found = compiled.try_emplace(pattern, pattern).first;
    return std::regex_match(text_, match_, found->second);
  }
  Meaning Mean(const char* rule, const std::string& what, const std::string& number,
               Certainty certainty) const {
    return NumberMeaning{rule, quoted_ + ' ' + what, number,
                         number.empty() ? Certainty::None : certainty};
  }

  std::string quoted_;
  std::string text_;
  bool isForeign_;
  const WantedNumber& wanted_;
  std::smatch match_;
};

Meaning Field::Read() {
  for (const auto reader :
       {&Field::AsSwitch, &Field::AsOtherCharacters, &Field::AsOtherNotation, &Field::AsGroups,
        &Field::AsDecimalComma, &Field::AsQuantity, &Field::AsFraction, &Field::AsPieces}) {
    if (const Meaning meaning = (this->*reader)()) return meaning;
  }
  return std::nullopt;
}

Meaning Field::AsSwitch() {
  if (wanted_.off == nullptr) return std::nullopt;
  static const std::regex kOn("on|true|yes|enabled?");
  static const std::regex kOff("off|false|no|disabled?");
  const std::string word = Folded(Without(text_, "\"'"));
  if (std::regex_match(word, kOn))
    return Mean("word-for-switch", "is no number", "1", Certainty::Certain);
  if (std::regex_match(word, kOff))
    return Mean("word-for-switch", "is no number", wanted_.off, Certainty::Certain);
  return std::nullopt;
}

Meaning Field::AsOtherCharacters() {
  if (isForeign_ && IsNumber(text_, wanted_.isInteger))
    return Mean("digits-beyond-ascii", "has characters beyond ASCII", text_, Certainty::Certain);
  if (Matches("[=>]+\\s*(\\S+)") && IsNumber(match_[1], wanted_.isInteger))
    return Mean("second-equals-sign", "begins with another = or >", match_[1], Certainty::Certain);
  if (wanted_.isInteger && Matches("[Mm][Oo][Dd][Ee] ?#?(\\d+)"))
    return Mean("no-number", "is a key, not its number", match_[1], Certainty::Certain);
  if (!Matches("[+-]?[.\\dOolI]*\\d[.\\dOolI]*")) return std::nullopt;
  const std::string withZeros = Replaced(Replaced(text_, 'O', '0'), 'o', '0');
  const std::string digits = Replaced(Replaced(withZeros, 'l', '1'), 'I', '1');
  if (digits == text_ || !IsNumber(digits, wanted_.isInteger)) return std::nullopt;
  return Mean("letter-in-number", "has a letter in place of a digit", digits,
              digits == withZeros ? Certainty::Certain : Certainty::Likely);
}

Meaning Field::AsOtherNotation() {
  if (Matches("[+-]?0[xX][\\da-fA-F]+")) {
    const std::string number =
        Written(static_cast<double>(std::strtoll(text_.c_str(), nullptr, 16)), true);
    return Mean("hexadecimal", "is hexadecimal, which is not read", number, Certainty::Certain);
  }
  if (!wanted_.isInteger) return std::nullopt;
  if (Matches("[+-]?\\d+(\\.\\d*)?[eE][+]?\\d+"))
    return Mean("exponent", "has an exponent, which is not read in an integer",
                Written(NumberOf(text_), true), Certainty::Certain);
  // 1.000 is 1 to some and 1000 to others.
  if (Matches("[+-]?[1-9]\\d{0,2}\\.\\d{3}"))
    return Mean("thousands-separator", "can be read in two ways", {}, Certainty::None);
  if (Matches("[+-]?\\d+\\.\\d*"))
    return Mean("fraction", "is no integer", Written(NumberOf(text_), true), Certainty::Certain);
  return std::nullopt;
}

Meaning Field::AsGroups() {
  const auto mean = [&](const std::string& number, Certainty certainty) {
    const bool fits = IsNumber(number, wanted_.isInteger);
    return Mean("thousands-separator", "has thousands separators", fits ? number : std::string(),
                certainty);
  };
  if (Matches("[+-]?\\d{1,3}(['_]\\d{3})+(\\.\\d+)?"))
    return mean(Without(text_, "'_"), Certainty::Certain);
  if (Matches("[+-]?[1-9]\\d{0,2}( \\d{3})+(\\.\\d+)?"))
    return mean(Without(text_, " "), Certainty::Likely);
  if (Matches("[+-]?[1-9]\\d{0,2}(\\.\\d{3}){2,}"))
    return mean(Without(text_, "."), Certainty::Certain);
  if (wanted_.isInList) return std::nullopt;
  if (Matches("[+-]?[1-9]\\d{0,2}(,\\d{3})+\\.\\d+") || Matches("[+-]?[1-9]\\d{0,2}(,\\d{3}){2,}"))
    return mean(Without(text_, ","), Certainty::Certain);
  if (Matches("[+-]?[1-9]\\d{0,2}(\\.\\d{3})+,\\d+"))
    return mean(Replaced(Without(text_, "."), ',', '.'), Certainty::Certain);
  if (Matches("[+-]?[1-9]\\d{0,2},\\d{3}"))
    return Mean("thousands-separator", "can be read in two ways", {}, Certainty::None);
  return std::nullopt;
}

Meaning Field::AsDecimalComma() {
  if (wanted_.isInList || !Matches("[+-]?(\\d+,\\d*|,\\d+)")) return std::nullopt;
  const std::string number = Replaced(text_, ',', '.');
  return Mean("decimal-comma", "has a decimal comma",
              wanted_.isInteger ? Written(NumberOf(number), true) : number, Certainty::Certain);
}

Meaning Field::AsQuantity() {
  static const std::map<std::string, double> kLengths = {
      {"um", 0.001}, {"micron", 0.001}, {"microns", 0.001}, {"mm", 1.0},     {"cm", 10.0},
      {"m", 1000.0}, {"in", 25.4},      {"inch", 25.4},     {"inches", 25.4}};
  static const std::map<std::string, double> kAngles = {
      {"deg", 1.0}, {"degree", 1.0}, {"degrees", 1.0}};
  static const std::map<std::string, double> kCounts = {
      {"dpi", 1.0}, {"layer", 1.0}, {"layers", 1.0}};
  const bool takesComma = !wanted_.isInList && !wanted_.isInteger;
  if (!Matches("([+-]?[\\d.,]+)\\s*([A-Za-z]+|%)\\.?")) return std::nullopt;
  const std::string number = takesComma ? Replaced(match_[1], ',', '.') : match_[1].str();
  // 1,000 mm is 1 mm to some and 1 m to others.
  const bool isClear = !std::regex_match(match_[1].str(), std::regex("[+-]?[1-9]\\d{0,2},\\d{3}"));
  if (!IsNumber(number, wanted_.isInteger)) return std::nullopt;
  const std::string unit = Folded(match_[2].str());
  const bool isUnit =
      unit == "%" || kLengths.count(unit) + kAngles.count(unit) + kCounts.count(unit) != 0;
  if (!isUnit) return std::nullopt;
  const auto& units = wanted_.isInteger ? kCounts : wanted_.isAngle ? kAngles : kLengths;
  const auto found = units.find(unit);
  const bool isKnown = found != units.end() && isClear;
  std::string meant;
  if (isKnown)
    meant = found->second == 1.0 ? number : Written(NumberOf(number) * found->second, false);
  return Mean("unit", "has a unit, which is not read", meant, Certainty::Certain);
}

Meaning Field::AsFraction() {
  if (!Matches("(\\d{1,4}) ?/ ?(\\d{1,4})")) return std::nullopt;
  const double divisor = NumberOf(match_[2]);
  const std::string number =
      divisor == 0.0 ? std::string() : Written(NumberOf(match_[1]) / divisor, wanted_.isInteger);
  return Mean("fraction", "is a fraction, which is not read", number, Certainty::Likely);
}

Meaning Field::AsPieces() {
  if (!Matches("[+-]?[\\d.]+([ \\t]+[\\d.]+)+|[+-][ \\t]+[\\d.]+")) return std::nullopt;
  const std::string joined = Without(text_, " \t");
  const bool isAtPoint = Matches(".*\\d[ \\t]+\\.\\d.*|.*\\d\\.[ \\t]+\\d.*|[+-][ \\t]+[\\d.]+");
  const bool isClear = isAtPoint && IsNumber(joined, wanted_.isInteger);
  return Mean("blank-in-number", "has a blank within", isClear ? joined : std::string(),
              Certainty::Likely);
}

std::vector<std::string> Fields(const std::string& list) {
  static const std::regex kComma("[ \\t]*,[ \\t]*");
  return {std::sregex_token_iterator(list.begin(), list.end(), kComma, -1), {}};
}

std::string Joined(const std::vector<std::string>& fields) {
  std::string list;
  for (const std::string& field : fields)
    list += (list.empty() ? "" : ",") + field;
  return list;
}

bool AreNumbers(const std::vector<std::string>& fields, std::size_t count, bool areIntegers) {
  return (count == 0 ? !fields.empty() : fields.size() == count) &&
         std::all_of(fields.begin(), fields.end(), [areIntegers](const std::string& field) {
           return IsNumber(field, areIntegers);
         });
}

std::vector<std::string> WithoutEmpty(std::vector<std::string> fields) {
  fields.erase(std::remove(fields.begin(), fields.end(), ""), fields.end());
  return fields;
}

/// All ways to read some pairs of fields as numbers with a decimal comma so that as many numbers
/// come out as are wanted. Three digits behind a comma may be thousands.
void JoinPairs(const std::vector<std::string>& fields, std::size_t at, std::size_t count,
               const std::string& list, std::vector<std::string>* found) {
  static const std::regex kWhole("[+-]?\\d+");
  static const std::regex kDecimals("\\d{1,2}");
  constexpr std::size_t kEnough = 2;
  if (found->size() == kEnough || fields.size() - at < count) return;
  if (at == fields.size()) {
    if (count == 0) found->push_back(list.substr(1));
    return;
  }
  if (count == 0) return;
  if (IsNumber(fields[at], false))
    JoinPairs(fields, at + 1, count - 1, list + ',' + fields[at], found);
  if (at + 1 < fields.size() && std::regex_match(fields[at], kWhole) &&
      std::regex_match(fields[at + 1], kDecimals))
    JoinPairs(fields, at + 2, count - 1, list + ',' + fields[at] + '.' + fields[at + 1], found);
}

/// The list with full stops for decimal commas; empty where it can be read in more ways than one.
std::string WithDecimalCommas(const std::vector<std::string>& fields, std::size_t count) {
  std::vector<std::string> found;
  JoinPairs(fields, 0, count, {}, &found);
  return found.size() == 1 ? found.front() : std::string();
}

}  // namespace

Meaning MeaningOf(const std::wstring& field, const WantedNumber& wanted) {
  constexpr std::size_t kLongest = 64;  // patterns recurse, and no number is that long
  if (field.size() > kLongest) return std::nullopt;
  return Field(field, wanted).Read();
}

Meaning MeaningOfList(const std::wstring& list, std::size_t count, bool ofIntegers) {
  constexpr std::size_t kLongest = 520;  // patterns recurse
  if (list.size() > kLongest) return std::nullopt;
  const std::string quoted = Named(list);
  const std::string text = InAscii(list);
  std::vector<std::string> fields = Fields(text);
  static const std::regex kHexadecimal("(^|.*\\D)0[xX].*");
  const bool isForeign = std::any_of(list.begin(), list.end(), [](wchar_t c) { return c >= 0x80; });
  if ((!isForeign && AreNumbers(fields, count, ofIntegers)) || std::regex_match(text, kHexadecimal))
    return std::nullopt;
  if (AreNumbers(fields, count, ofIntegers))
    return NumberMeaning{"digits-beyond-ascii", quoted + " has characters beyond ASCII",
                         Joined(fields), Certainty::Certain};
  if (!ofIntegers && fields.size() > count && count != 0) {
    const std::string joined = WithDecimalCommas(fields, count);
    const bool areAll = AreNumbers(fields, 2 * count, true);
    // Otherwise a field can be one too many.
    const bool isOne = areAll || text.find('.') != std::string::npos;
    if (!joined.empty() && isOne)
      return NumberMeaning{"decimal-comma", quoted + " has decimal commas", joined,
                           areAll ? Certainty::Certain : Certainty::Likely};
  }
  const std::vector<std::string> full = WithoutEmpty(fields);
  if (full.size() < fields.size() && AreNumbers(full, count, ofIntegers))
    return NumberMeaning{"list-separator", quoted + " has an empty field", Joined(full),
                         Certainty::Certain};
  static const std::regex kBrackets("[(\\[{](.*)[)\\]}]");
  static const std::regex kSeparators("[ \\t]*[;*|][ \\t]*|[ \\t]+by[ \\t]+|[ \\t]*[xX][ \\t]*");
  static const std::regex kBlanks("[ \\t]+");
  const std::string inner = std::regex_replace(text, kBrackets, "$1");
  const std::string separated = std::regex_replace(inner, kSeparators, ",");
  for (const std::string& candidate :
       {inner, separated, std::regex_replace(separated, kBlanks, ",")}) {
    fields = Fields(candidate);
    if (AreNumbers(fields, count, ofIntegers))
      return NumberMeaning{
          "list-separator", quoted + " is no list with commas alone", Joined(fields),
          count == 0 && candidate != inner && candidate != separated ? Certainty::Likely
                                                                     : Certainty::Certain};
  }
  fields = Fields(Replaced(text, '.', ','));
  if (Fields(text).size() < count && AreNumbers(fields, count, true))
    return NumberMeaning{"list-separator", quoted + " has a full stop for a comma", Joined(fields),
                         Certainty::Likely};
  return std::nullopt;
}

}  // namespace tavrin::tool
