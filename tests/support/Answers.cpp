#include "support/Answers.h"

#include <charconv>
#include <cstdint>
#include <cstring>
#include <iterator>
#include <limits>

#include "InkSlot.h"
#include "TavrinLib.h"
#include "support/Owned.h"
#include "support/TestFiles.h"

namespace tavrin::test {

namespace {

constexpr std::int32_t kLowest = std::numeric_limits<std::int32_t>::min();
constexpr std::int32_t kHighest = std::numeric_limits<std::int32_t>::max();
constexpr std::uint32_t kUntouched = 0xABABABAB;

std::string Hex(const void* bytes, std::size_t size) {
  const char* digits = "0123456789abcdef";
  std::string text;
  for (std::size_t i = 0; i < size; ++i) {
    const auto byte = static_cast<const unsigned char*>(bytes)[i];
    text += {digits[byte >> 4], digits[byte & 15]};
  }
  return text;
}

class Answers {
 public:
  template <typename... Values>
  void Add(const std::string& question, bool result, const Values&... values) {
    text_ += question + (result ? " true" : " false");
    ((text_ += ' ' + Spelled(values)), ...);
    std::uint32_t code = kUntouched;
    if (!result && TavrinGetLastError(&code)) text_ += " error " + std::to_string(code);
    text_ += '\n';
    TavrinInitialize(nullptr);  // its code shows where the next failure records none
  }

  /// Asks for a value of a type that the query sets in full or not at all.
  template <typename Value>
  void AddQuery(const char* name, bool (*query)(Value*)) {
    auto value = static_cast<Value>(1);
    const bool result = query(&value);
    Add(name, result, value);
  }

  std::string Take() { return std::move(text_); }

 private:
  static std::string Spelled(const std::string& text) { return text; }
  static std::string Spelled(double value) {
    char text[64];
    return {text, std::to_chars(text, std::end(text), value).ptr};
  }
  template <typename Integer>
  static std::string Spelled(Integer value) {
    return std::to_string(value);
  }

  std::string text_;
};

void AskIdentity(Answers* answers) {
  char info[384];
  std::memset(info, '?', sizeof info);
  const bool result = TavrinGetInfo(info);
  answers->Add("Info", result, Hex(info, sizeof info));
  answers->Add("Info null", TavrinGetInfo(nullptr));
}

void AskScalars(Answers* answers) {
  std::uint32_t x = 7, y = 7, z = 7;
  const bool result = TavrinGetAreaSize(&x, &y, &z);
  answers->Add("AreaSize", result, x, y, z);
  answers->AddQuery("AreaMarginSize", TavrinGetAreaMarginSize);
  answers->AddQuery("TopSupportThickness", TavrinGetTopSupportThickness);
  answers->AddQuery("DetachLayerHeight", TavrinGetDetachLayerHeight);
  answers->AddQuery("HeadBandSize", TavrinGetHeadBandSize);
  answers->AddQuery("DefaultPrintMode", TavrinGetDefaultPrintMode);
  answers->AddQuery("ChippingAllowance", TavrinGetChippingAllowance);
  answers->AddQuery("SupportSize", TavrinGetSupportSize);
  answers->AddQuery("Smoothing", TavrinGetSmoothing);
  answers->AddQuery("FeedBiDirection", TavrinGetFeedBiDirection);
  answers->AddQuery("WrapReduction", TavrinGetWrapReduction);
  answers->AddQuery("AutoCleaning", TavrinGetAutoCleaning);
  answers->AddQuery("CheckNozzleWhilePrinting", TavrinGetCheckNozzleWhilePrinting);
  for (const std::int32_t height : {kLowest, -1, 0, 1, 10000, 305000, kHighest}) {
    std::uint32_t thickness = kUntouched;
    const bool known = TavrinGetSideSupportThickness(height, &thickness);
    answers->Add("SideSupportThickness " + std::to_string(height), known, thickness);
  }
}

void AskMode(Answers* answers, std::int32_t index) {
  std::int32_t config[6] = {7, 7, 7, 7, 7, 7};
  const bool known = TavrinGetModeConfig(index, config);
  answers->Add("ModeConfig " + std::to_string(index), known, config[0], config[1], config[2],
               config[3], config[4], config[5]);
  bool limited = true;
  const bool warned = TavrinGetWarpWarning(index, &limited);
  answers->Add("WarpWarning " + std::to_string(index), warned, limited);
}

void AskModes(Answers* answers) {
  std::uint32_t count = kUntouched;
  const bool result = TavrinGetModeCount(&count);
  answers->Add("ModeCount", result, count);
  for (std::int32_t i = -1; i <= static_cast<std::int32_t>(count); ++i)
    AskMode(answers, i);
  AskMode(answers, kLowest);
  AskMode(answers, kHighest);
}

void AskCategory(Answers* answers, std::int32_t index) {
  std::int32_t* numbers = nullptr;
  std::int32_t count = 7;
  const bool known = TavrinGetInkSlotNumConposeInkCategory(index, &numbers, &count);
  const Owned<std::int32_t> owned(numbers);
  std::string list;
  for (std::int32_t i = 0; known && i < count; ++i)
    list += std::to_string(numbers[i]) + ',';
  answers->Add("Category " + std::to_string(index), known, count, list);
}

void AskCategories(Answers* answers) {
  std::uint32_t count = 1;
  const bool result = TavrinGetItemCountOfInkCategory(&count);
  answers->Add("CategoryCount", result, count);
  for (std::int32_t i = -1; i <= static_cast<std::int32_t>(count); ++i)
    AskCategory(answers, i);
  AskCategory(answers, kLowest);
  AskCategory(answers, kHighest);
}

void AddText(Answers* answers, const char* question, const InkSlot& slot,
             bool (InkSlot::*get)(char**, std::int32_t*) const) {
  char* text = nullptr;
  std::int32_t size = -1;
  const bool result = (slot.*get)(&text, &size);
  const Owned<char> owned(text);
  answers->Add(question, result, size,
               text == nullptr ? "none" : Hex(text, static_cast<std::size_t>(size)));
  answers->Add(question + std::string(" null"), (slot.*get)(nullptr, &size), size);
}

void AskSlot(Answers* answers, std::uint32_t number) {
  InkSlot* const untouched = reinterpret_cast<InkSlot*>(answers);
  InkSlot* slot = untouched;
  const bool known = TavrinGetInkSlot(number, &slot);
  const std::string what = slot == untouched ? "untouched" : slot == nullptr ? "null" : "a slot";
  answers->Add("Slot " + std::to_string(number), known, what);
  if (!known) return;
  std::uint32_t color = kUntouched, inkType = kUntouched;
  const bool hasColor = slot->GetColorCode(&color);
  const bool hasInkType = slot->GetInkTypeCode(&inkType);
  answers->Add(" ColorCode", hasColor, color);
  answers->Add(" InkTypeCode", hasInkType, inkType);
  AddText(answers, " InkId", *slot, &InkSlot::GetInkId);
  AddText(answers, " InkName", *slot, &InkSlot::GetInkName);
  answers->Add(" IsValid", slot->IsValid());
}

void AskSlots(Answers* answers) {
  std::uint32_t count = 1;
  const bool result = TavrinGetItemCountOfInkSlot(&count);
  answers->Add("SlotCount", result, count);
  for (std::uint32_t number = 0; number <= count + 1; ++number)
    AskSlot(answers, number);
  AskSlot(answers, std::numeric_limits<std::uint32_t>::max());
  answers->Add("Slot null", TavrinGetInkSlot(1, nullptr));
}

void AskConditions(Answers* answers, const std::string& path) {
  const bool written = TavrinCreateModelingConditionsFile(path.c_str());
  const std::string content = written ? ReadWhole(path) : "";
  answers->Add("Conditions", written, Hex(content.data(), content.size()));
  answers->Add("Conditions null", TavrinCreateModelingConditionsFile(nullptr));
  answers->Add("Conditions nameless", TavrinCreateModelingConditionsFile(""));
}

}  // namespace

std::string AskEverything() {
  TavrinInitialize(nullptr);
  Answers answers;
  AskIdentity(&answers);
  AskScalars(&answers);
  AskModes(&answers);
  AskCategories(&answers);
  AskSlots(&answers);
  return answers.Take();
}

std::string AskEverythingAndWrite(const std::string& conditionsPath) {
  const std::string queries = AskEverything();
  Answers answers;
  AskConditions(&answers, conditionsPath);
  return queries + answers.Take();
}

}  // namespace tavrin::test
