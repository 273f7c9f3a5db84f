#include "support/Answers.h"

#include <algorithm>
#include <memory>
#include <sstream>

#include "InkSlot.h"
#include "TavrinLib.h"

namespace tavrin::test {

namespace {

class Record {
 public:
  template <typename... Values>
  void Note(bool answered, const Values&... values) {
    text_ << answered;
    ((text_ << ' ' << values), ...);
    text_ << '\n';
  }

  template <typename Value>
  void NoteOneOf(bool (*query)(Value*)) {
    Value value{};
    const bool answered = query(&value);
    Note(answered, value);
  }

  std::string Text() const { return text_.str(); }

 private:
  std::ostringstream text_;
};

std::uint32_t CountOf(bool (*query)(std::uint32_t*)) {
  std::uint32_t count = 0;
  return query(&count) ? count : 0;
}

void NoteScalars(Record* record) {
  for (const auto query :
       {TavrinGetAreaMarginSize, TavrinGetModeCount, TavrinGetTopSupportThickness,
        TavrinGetDetachLayerHeight, TavrinGetDefaultPrintMode, TavrinGetChippingAllowance,
        TavrinGetSupportSize, TavrinGetItemCountOfInkCategory, TavrinGetItemCountOfInkSlot}) {
    record->NoteOneOf(query);
  }
  for (const auto query : {TavrinGetSmoothing, TavrinGetFeedBiDirection, TavrinGetWrapReduction,
                           TavrinGetAutoCleaning, TavrinGetCheckNozzleWhilePrinting}) {
    record->NoteOneOf(query);
  }
  record->NoteOneOf(TavrinGetHeadBandSize);
  std::uint32_t size[3] = {};
  const bool hasSize = TavrinGetAreaSize(&size[0], &size[1], &size[2]);
  record->Note(hasSize, size[0], size[1], size[2]);
  std::uint32_t thickness = 0;
  const bool hasThickness = TavrinGetSideSupportThickness(100000, &thickness);
  record->Note(hasThickness, thickness);
  char info[384] = {};
  const bool hasInfo = TavrinGetInfo(info);
  record->Note(hasInfo, std::string(info, sizeof info));
}

void NoteModes(Record* record) {
  const auto count = static_cast<std::int32_t>(CountOf(TavrinGetModeCount));
  for (std::int32_t index = 0; index <= count; ++index) {
    std::int32_t mode[6] = {};
    bool limited = false;
    const bool hasMode = TavrinGetModeConfig(index, mode);
    record->Note(hasMode, mode[0], mode[1], mode[2], mode[3], mode[4], mode[5]);
    const bool hasWarning = TavrinGetWarpWarning(index, &limited);
    record->Note(hasWarning, limited);
  }
}

void NoteCategories(Record* record) {
  const auto categories = static_cast<std::int32_t>(CountOf(TavrinGetItemCountOfInkCategory));
  for (std::int32_t index = 0; index <= categories; ++index) {
    std::int32_t* numbers = nullptr;
    std::int32_t count = 0;
    const bool answered = TavrinGetInkSlotNumConposeInkCategory(index, &numbers, &count);
    const std::unique_ptr<std::int32_t[]> owned(numbers);
    record->Note(answered, count);
    std::for_each(numbers, numbers + count,
                  [&](std::int32_t number) { record->Note(true, number); });
  }
}

std::string TextOf(const InkSlot& slot, bool (InkSlot::*get)(char**, std::int32_t*) const) {
  char* text = nullptr;
  std::int32_t size = 0;
  (slot.*get)(&text, &size);
  const std::unique_ptr<char[]> owned(text);
  return text == nullptr ? "none" : std::string(text, static_cast<std::size_t>(size));
}

void NoteSlots(Record* record) {
  const std::uint32_t count = CountOf(TavrinGetItemCountOfInkSlot);
  for (std::uint32_t number = 1; number <= count + 1; ++number) {
    InkSlot* slot = nullptr;
    const bool answered = TavrinGetInkSlot(number, &slot);
    record->Note(answered);
    if (slot == nullptr) continue;
    std::uint32_t color = 0;
    std::uint32_t inkType = 0;
    slot->GetColorCode(&color);
    slot->GetInkTypeCode(&inkType);
    record->Note(slot->IsValid(), color, inkType, TextOf(*slot, &InkSlot::GetInkId),
                 TextOf(*slot, &InkSlot::GetInkName));
  }
}

}  // namespace

std::string AskEverything() {
  Record record;
  NoteScalars(&record);
  NoteModes(&record);
  NoteCategories(&record);
  NoteSlots(&record);
  return record.Text();
}

}  // namespace tavrin::test
