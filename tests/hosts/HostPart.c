#include "hosts/HostPart.h"

#include <string.h>

#include "InkSlot.h"
#include "TavrinLib.h"
#include "TavrinRelease.h"

void AskSlotInC(uint32_t number, struct SlotAnswer* answer) {
  InkSlot* slot = NULL;
  char* id = NULL;
  char* name = NULL;
  if (!TavrinGetInkSlot(number, &slot)) return;
  answer->succeeded = slot->operations->GetColorCode(slot, &answer->color) &&
                      slot->operations->GetInkTypeCode(slot, &answer->inkType) &&
                      slot->operations->GetInkId(slot, &id, &answer->idSize) &&
                      slot->operations->GetInkName(slot, &name, &answer->nameSize);
  answer->valid = slot->operations->IsValid(slot);
  if (id) memcpy(answer->id, id, (size_t)answer->idSize);
  if (name) memcpy(answer->name, name, (size_t)answer->nameSize);
  TavrinRelease(id);
  TavrinRelease(name);
}

void AskCategoryInC(int32_t index, struct CategoryAnswer* answer) {
  int32_t* numbers = NULL;
  answer->succeeded = TavrinGetInkSlotNumConposeInkCategory(index, &numbers, &answer->count);
  if (numbers) memcpy(answer->numbers, numbers, (size_t)answer->count * sizeof *numbers);
  TavrinRelease(numbers);
}
