#include "ShowInks.h"

#include <cstdint>
#include <map>
#include <memory>

#include "InkSlot.h"
#include "Query.h"
#include "TavrinLib.h"

namespace tavrin::tool {

namespace {

/// What the library tells about one ink slot.
struct SlotFacts {
  std::uint32_t number = 0;
  std::uint32_t colorCode = 0;
  std::uint32_t inkTypeCode = 0;
  std::string id;
  std::string name;
  bool valid = false;
};

/// Takes over the array that a slot hands out.
std::string TextOf(const InkSlot& slot, bool (InkSlot::*get)(char**, std::int32_t*) const) {
  char* text = nullptr;
  std::int32_t size = 0;
  if (!(slot.*get)(&text, &size) || text == nullptr) return {};
  const std::unique_ptr<char[]> owned(text);
  return text;
}

std::vector<SlotFacts> AskSlots(const Report& report) {
  std::uint32_t count = 0;
  Ask(report, "TavrinGetItemCountOfInkSlot", TavrinGetItemCountOfInkSlot(&count));
  std::vector<SlotFacts> slots;
  for (std::uint32_t number = 1; number <= count; ++number) {
    InkSlot* slot = nullptr;
    Ask(report, "TavrinGetInkSlot", TavrinGetInkSlot(number, &slot));
    SlotFacts facts;
    facts.number = number;
    slot->GetColorCode(&facts.colorCode);
    slot->GetInkTypeCode(&facts.inkTypeCode);
    facts.id = TextOf(*slot, &InkSlot::GetInkId);
    facts.name = TextOf(*slot, &InkSlot::GetInkName);
    facts.valid = slot->IsValid();
    slots.push_back(facts);
  }
  return slots;
}

/// Codes go out modulo 2^32.
std::string CodeText(std::uint32_t code) {
  return std::to_string(static_cast<std::int32_t>(code));
}

/// Which slots hold what a code stands for. Names of single colours and ink types are not handed
/// out, only those of whole inks.
void ShowCodes(Report* report, const char* title, std::uint32_t SlotFacts::*code) {
  report->Section(title);
  std::map<std::int32_t, std::string> slotsOfCode;
  for (const SlotFacts& slot : AskSlots(*report)) {
    if (!slot.valid) continue;
    std::string& list = slotsOfCode[static_cast<std::int32_t>(slot.*code)];
    list += (list.empty() ? "" : ", ") + std::to_string(slot.number);
  }
  for (const auto& [value, list] : slotsOfCode) {
    report->Value("Code " + std::to_string(value), "slots " + list);
  }
  if (slotsOfCode.empty()) report->Value("None", "no slot is valid");
}

std::string SlotsOfCategory(std::int32_t index) {
  std::int32_t* numbers = nullptr;
  std::int32_t count = 0;
  if (!TavrinGetInkSlotNumConposeInkCategory(index, &numbers, &count)) return "no slots";
  const std::unique_ptr<std::int32_t[]> owned(numbers);
  std::string list = "slots ";
  for (std::int32_t i = 0; i < count; ++i) {
    list += (i == 0 ? "" : ", ") + std::to_string(numbers[i]);
  }
  return list;
}

}  // namespace

void ShowInkSlots(Report* report) {
  report->Section("Ink slots");
  std::vector<Report::Row> rows;
  for (const SlotFacts& slot : AskSlots(*report)) {
    rows.push_back({std::to_string(slot.number), slot.id, CodeText(slot.colorCode),
                    CodeText(slot.inkTypeCode), slot.valid ? slot.name : "(unknown ink)"});
  }
  report->Table({"Slot", "Ink id", "Colour code", "Ink type code", "Ink"}, rows);
}

void ShowColors(Report* report) {
  ShowCodes(report, "Colours in the slots", &SlotFacts::colorCode);
}

void ShowInkTypes(Report* report) {
  ShowCodes(report, "Ink types in the slots", &SlotFacts::inkTypeCode);
}

void ShowInkCategories(Report* report) {
  report->Section("Ink categories");
  std::uint32_t count = 0;
  Ask(*report, "TavrinGetItemCountOfInkCategory", TavrinGetItemCountOfInkCategory(&count));
  for (std::int32_t i = 0; i < static_cast<std::int32_t>(count); ++i) {
    const bool isAllInk = i + 1 == static_cast<std::int32_t>(count);
    const bool isModelInk = i + 2 == static_cast<std::int32_t>(count);
    report->Value("Category " + std::to_string(i) +
                      (isAllInk     ? ": all ink"
                       : isModelInk ? ": model ink"
                                    : ""),
                  SlotsOfCategory(i));
  }
}

}  // namespace tavrin::tool
