// Compiled once by the compiler of the tests and once for Microsoft's target, where no library of
// the language is at hand.
#include "hosts/HostPart.h"

#include "InkSlot.h"
#include "TavrinLib.h"
#include "TavrinRelease.h"

#if defined(_MSC_VER)
#define IN_CPP(name) name##InMicrosoftsCpp
#else
#define IN_CPP(name) name##InCpp
#endif

namespace {

template <typename Element>
void Keep(Element* array, int32_t count, Element* kept) {
  for (int32_t i = 0; array != nullptr && i < count; ++i)
    kept[i] = array[i];
  TavrinRelease(array);
}

}  // namespace

void IN_CPP(AskSlot)(uint32_t number, SlotAnswer* answer) {
  InkSlot* slot = nullptr;
  char* id = nullptr;
  char* name = nullptr;
  if (!TavrinGetInkSlot(number, &slot)) return;
  answer->succeeded =
      slot->GetColorCode(&answer->color) && slot->GetInkTypeCode(&answer->inkType) &&
      slot->GetInkId(&id, &answer->idSize) && slot->GetInkName(&name, &answer->nameSize);
  answer->valid = slot->IsValid();
  Keep(id, answer->idSize, answer->id);
  Keep(name, answer->nameSize, answer->name);
}

void IN_CPP(AskCategory)(int32_t index, CategoryAnswer* answer) {
  int32_t* numbers = nullptr;
  answer->succeeded = TavrinGetInkSlotNumConposeInkCategory(index, &numbers, &answer->count);
  Keep(numbers, answer->count, answer->numbers);
}

#if defined(_MSC_VER)
void DeleteSlotInMicrosoftsCpp(uint32_t number) {
  InkSlot* slot = nullptr;
  if (TavrinGetInkSlot(number, &slot)) delete slot;
}
#endif
