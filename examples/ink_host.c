/* A host in C: lists the ink slots with their inks, and which slots each ink category has. */
#include <inttypes.h>
#include <stdio.h>

#include "InkSlot.h"
#include "TavrinLib.h"
#include "TavrinRelease.h"

/* Reports a failed call; its reason is fresh. */
static bool Fail(const char* call) {
  uint32_t code = ErrorNone;
  TavrinGetLastError(&code);
  fprintf(stderr, "%s failed: error %" PRIu32 "\n", call, code);
  return false;
}

static void PrintSlot(uint32_t number, const InkSlot* slot) {
  char* name = NULL;
  int32_t size = 0;
  slot->operations->GetInkName(slot, &name, &size);
  printf("Slot %" PRIu32 ": %s\n", number, slot->operations->IsValid(slot) ? name : "unknown ink");
  TavrinRelease(name);
}

static bool PrintSlots(void) {
  uint32_t count = 0;
  if (!TavrinGetItemCountOfInkSlot(&count)) return Fail("TavrinGetItemCountOfInkSlot");
  for (uint32_t number = 1; number <= count; ++number) {
    InkSlot* slot = NULL; /* stays the library's */
    if (!TavrinGetInkSlot(number, &slot)) return Fail("TavrinGetInkSlot");
    PrintSlot(number, slot);
  }
  return true;
}

static void PrintCategory(int32_t index) {
  int32_t* numbers = NULL;
  int32_t count = 0;
  printf("Category %" PRId32 ":", index);
  /* One without slots answers false. */
  if (TavrinGetInkSlotNumConposeInkCategory(index, &numbers, &count)) {
    for (int32_t i = 0; i < count; ++i)
      printf(" %" PRId32, numbers[i]);
    TavrinRelease(numbers);
  }
  printf("\n");
}

static bool PrintCategories(void) {
  uint32_t count = 0;
  if (!TavrinGetItemCountOfInkCategory(&count)) return Fail("TavrinGetItemCountOfInkCategory");
  for (int32_t index = 0; index < (int32_t)count; ++index)
    PrintCategory(index);
  return true;
}

int main(int argc, char** argv) {
  bool succeeded = false;
  if (argc != 2) {
    fprintf(stderr, "usage: ink_host DEFINITION\n");
    return 2;
  }
  succeeded =
      TavrinInitialize(argv[1]) ? PrintSlots() && PrintCategories() : Fail("TavrinInitialize");
  TavrinFinalize();
  return succeeded ? 0 : 1;
}
