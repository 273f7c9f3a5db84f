#include "fuzz/differential/DefinitionGenerator.h"

#include <algorithm>
#include <cctype>
#include <map>

#include "util/TextUtilities.h"

namespace tavrin::test {

std::string DefinitionGenerator::Make() {
  text_.clear();
  while (OneIn(3))
    Noise();
  if (OneIn(6)) {
    Header("other");
    Identity();
  }
  Header("printer");
  while (OneIn(3))
    Noise();
  void (DefinitionGenerator::*const kParts[])() = {
      &DefinitionGenerator::Identity,      &DefinitionGenerator::Dimensions,
      &DefinitionGenerator::Support,       &DefinitionGenerator::Switches,
      &DefinitionGenerator::CuttingMargin, &DefinitionGenerator::Modes,
      &DefinitionGenerator::InkSlots,
  };
  for (const auto part : kParts) {
    if (!OneIn(12)) (this->*part)();
    while (OneIn(4))
      Noise();
  }
  if (!OneIn(4)) Table("NumOfColor", "Color");
  if (!OneIn(4)) Table("NumOfInkType", "InkType");
  if (OneIn(8)) {
    Header("printer");  // a second section of the name counts for nothing
    Dimensions();
  }
  if (OneIn(8)) text_.pop_back();  // the last line need not be ended
  return Encoded();
}

std::string DefinitionGenerator::OneOf(const std::string& alternatives) {
  const auto count = std::count(alternatives.begin(), alternatives.end(), '|') + 1;
  std::size_t begin = 0;
  for (std::size_t i = Below(static_cast<std::size_t>(count)); i > 0; --i)
    begin = alternatives.find('|', begin) + 1;
  return alternatives.substr(begin, alternatives.find('|', begin) - begin);
}

std::string DefinitionGenerator::Integer() {
  switch (Below(8)) {
    case 0:
      return OneOf(
          "0|-1|+7|007|2147483647|2147483648|-2147483648|-2147483649|99999999999999999999|0x10|"
          "12abc|abc||-|4.9|1e3|--1|+-1|1 2|\262|\2405| \2406|\3777|8\240|\3042|4\304");
    case 1:
      return std::to_string(static_cast<std::int32_t>(random_()));
    default:
      return std::to_string(Below(130));
  }
}

std::string DefinitionGenerator::Number() {
  switch (Below(6)) {
    case 0:
      return Integer();
    case 1:
      return OneOf(
          "1.|.5|-.5|.|1.5mm|1,5|1.5.5|+ 1|1 e5|1e3|1E+2|1e-3|1e+|0.1e|1d5|-0|0.0004|1.005|"
          "2147483.647|2147483.648|-2147483.649|4294967.296|45|90|89.99999999999999|270|"
          "1e15|1e19|1e308|-1e308|1e309|1e999|1.7976931348623159e308|1e-310|4.9e-324|1e-400|"
          "-1e-400|1e-5000|2.2250738585072011e-308|2.4703282292062328e-324|"
          "0x|0x1.8p3|0x1p-1074|0x65.2dp-1069|0x1.8p-1075|0x1p-1075|0x1p2000|inf|infinity|INFx|"
          "nan|-nan|nan(1)|nan(x y)|nan(0x7ffff)|NAN(123456789012345678)");
    case 2: {  // as many digits as no double can hold
      std::string digits = std::to_string(random_()) + ".";
      digits += std::to_string(random_());
      if (OneIn(2)) digits += "e-" + std::to_string(Below(40));
      return digits;
    }
    default: {
      std::string digits = std::to_string(Below(600)) + ".";
      for (std::size_t i = Below(6); i > 0; --i)
        digits += static_cast<char>('0' + Below(10));
      return digits;
    }
  }
}

std::string DefinitionGenerator::Text() {
  if (OneIn(10)) return LongText();
  std::string text;
  for (std::size_t i = Below(20); i > 0; --i) {
    const bool isAscii = !OneIn(12);
    text += isAscii ? static_cast<char>(' ' + Below(95))
                    : OneOf("\200|\231|\240|\304|\327|\337|\351|\377|\033|\177|\032|\001|\f")[0];
    if (OneIn(60)) text += '\0';
  }
  return text;
}

/// Around the lengths at which something happens: 128 (a field of the identity) and 521 (a read).
std::string DefinitionGenerator::LongText() {
  const std::size_t length = OneIn(2) ? 125 + Below(8) : OneIn(2) ? 515 + Below(14) : Below(3000);
  std::string text;
  while (text.size() < length)
    text += static_cast<char>('a' + text.size() % 26);
  return text;
}

std::string DefinitionGenerator::List(std::size_t fields,
                                      std::string (DefinitionGenerator::*field)()) {
  std::string list;
  for (std::size_t i = 0; i < fields; ++i) {
    list += (i == 0 ? "" : ",") + (OneIn(5) ? Blanks() : "");
    if (!OneIn(20)) list += (this->*field)();
  }
  return OneIn(15) ? list + "," : list;
}

std::string DefinitionGenerator::Blanks() {
  std::string blanks;
  for (std::size_t i = Below(3); i > 0; --i)
    blanks += OneOf(" | |\t|\v");
  return blanks;
}

std::string DefinitionGenerator::Quoted(const std::string& value) {
  if (value.size() > 500 || !OneIn(8)) return value;
  const std::string quote = OneOf("\"|'");
  return OneIn(8) ? quote + value : quote + value + quote;
}

std::string DefinitionGenerator::AnyCase(std::string name) {
  if (!OneIn(6)) return name;
  for (char& c : name) {
    const auto letter = static_cast<unsigned char>(c);
    c = static_cast<char>(OneIn(2) ? std::toupper(letter) : std::tolower(letter));
  }
  return name;
}

void DefinitionGenerator::Header(const char* name) {
  Line({Blanks(), "[", Blanks(), AnyCase(name), Blanks(), "]", OneOf("||| | text|Version=9|;")});
}

void DefinitionGenerator::Key(const std::string& name, const std::string& value) {
  if (OneIn(25)) return;
  if (OneIn(40)) Line({name});  // a line without '=' hides the key
  Line({Blanks(), AnyCase(name), Blanks(), "=", Blanks(), Quoted(value), Blanks()});
  if (OneIn(25)) Line({name, "=", Number()});
}

/// REQUIRES: what is random among the parts is in braces, which compilers evaluate in one order.
void DefinitionGenerator::Line(std::initializer_list<std::string> parts) {
  for (const std::string& part : parts)
    text_ += part;
  text_ += OneOf("\n|\n|\n|\r\n|\r\n|\r");
}

void DefinitionGenerator::Noise() {
  Line(
      {OneOf("| |\t|;|; text|;Version=8| ;ModelName=comment|# text|text|=|=value|= x| = "
             "|Unknown=1|Color001Code|NumOfColor|"
             "Version2=7|Printer]|x[printer]|//|\032|\f")});
}

void DefinitionGenerator::Identity() {
  Key("ModelName", Text());
  Key("Version", OneIn(3) ? Text() : "1." + Integer());
  Key("IPAddress", OneIn(3) ? Text() : "192.0.2." + Integer());
}

void DefinitionGenerator::Dimensions() {
  Key("PrinterSize", List(OneIn(6) ? Below(6) : 3, &DefinitionGenerator::Number));
  Key("PrintMargin", Number());
  Key("HeadBandSize", Number());
  Key("DefaultMode", Integer());
}

void DefinitionGenerator::Support() {
  Key("SupportThickness", Number());
  Key("SupportExtend", OneIn(2) ? Number() : OneOf("1|1.5|2.0|2.5|3|3.5|4"));
  Key("SupportExtendAngle", OneIn(2) ? Number() : OneOf("1|1.5|2.0"));
  if (OneIn(2)) Key("SupportSizeSetting", Integer());
  Key("DetachLayerSize", Number());
}

void DefinitionGenerator::Switches() {
  for (const char* name : {"AntiAliasing", "Reverse", "AutoCleaningEnabled", "NCUEnabled"})
    Key(name, OneIn(3) ? Integer() : OneOf("0|1"));
  Key("White_White", OneIn(2) ? Integer() : OneOf("0|80|100|100.5"));
}

void DefinitionGenerator::CuttingMargin() {
  Key("CuttingMarginSetting", OneIn(2) ? Integer() : OneOf("1|2|3"));
  for (const char* name : {"CuttingMarginThickness1", "CuttingMarginThickness2"})
    Key(name, Number());
}

void DefinitionGenerator::Modes() {
  const auto few = [this] { return OneIn(8) ? Integer() : std::to_string(Below(7)); };
  std::string modes, limited;
  for (std::size_t i = Below(8); i > 0; --i) {
    modes += few() + ",";
    limited += few() + ",";
  }
  Key("Mode", modes + few());
  Key("LimitationMode", limited);
  for (const char* name :
       {"Mode0", "Mode1", "Mode2", "Mode3", "Mode4", "Mode-1", "Mode2147483647"}) {
    const std::string prefix = name;
    Key(prefix, List(OneIn(6) ? Below(4) : 2, &DefinitionGenerator::Integer));
    Key(prefix + "SliceSize", Number());
    Key(prefix + "ColorThickness", Number());
    if (OneIn(2)) Key(prefix + "LimitedContinuous", Integer());
  }
}

void DefinitionGenerator::Table(const std::string& countKey, const std::string& prefix) {
  const std::size_t count = Below(7);
  // A count of four digits or more is held against the keys that are there.
  Key(countKey, OneIn(6) ? OneOf("1000|100000|2147483647|-1|0|2147483648") : std::to_string(count));
  for (std::size_t i = 1; i <= count; ++i) {
    const auto index = static_cast<std::int32_t>(OneIn(8) ? Below(2000) : i);
    const std::string entry = prefix + FormatThreeDigits(index);
    Key(entry + "Code", OneIn(3) ? Integer() : std::to_string(i));
    Key(entry + "Name", Text());
  }
}

void DefinitionGenerator::InkSlots() {
  const std::size_t count = Below(9);
  Key("PrinterInkSlotNum", OneIn(8) ? OneOf("2147483647|-1|9|1x") : std::to_string(count));
  const bool areComplete = !OneIn(3);  // one missing key brings the built-in slots
  for (std::size_t i = 1; i <= count; ++i) {
    const std::string number = std::to_string(i);
    for (const char* name : {"ColorCodeInkSlot", "InkTypeCodeInkSlot"}) {
      const std::string code = std::to_string(OneIn(5) ? 1000 + Below(5) : 1 + Below(5));
      if (areComplete) {
        Line({name, number, "=", code});
      } else {
        Key(name + number, code);
      }
    }
  }
}

std::string DefinitionGenerator::Encoded() {
  if (!OneIn(6)) return text_;
  // Two that lie outside Latin-1, two that no narrow text holds, a blank of Windows, a digit.
  static const std::map<char, std::u16string> kUnits = {
      {'\200', u"\u20AC"},     {'\231', u"\u2122"}, {'\327', u"\u2603"},
      {'\351', u"\U0001F600"}, {'\377', u"\u3000"}, {'\304', u"\uFF14"}};
  std::string encoded = "\xFF\xFE";
  for (const char c : text_) {
    const auto found = kUnits.find(c);
    const auto latin = static_cast<char16_t>(static_cast<unsigned char>(c));
    for (const char16_t unit : found == kUnits.end() ? std::u16string(1, latin) : found->second)
      encoded += {static_cast<char>(unit & 0xFF), static_cast<char>(unit >> 8)};
  }
  return OneIn(8) ? encoded + "x" : encoded;
}

}  // namespace tavrin::test
