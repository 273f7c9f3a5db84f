// What a first run on a Windows machine has to show, and whether it does, line by line; behind it
// the inks and categories of the definition. In a directory with the unpacked package, for
// Microsoft's compiler and linker and then for MinGW:
//   cl /MD /EHsc /std:c++17 /I include\TavrinLib first_run.cpp lib\TavrinLib.lib
//   g++ -static -I include/TavrinLib first_run.cpp lib/libTavrinLib.dll.a -o first_run
// and beside TavrinLib.dll:
//   tavrin encipher full-colour.ini full-colour.def
//   first_run full-colour.def
// It takes nothing of the C++ library, so that it compiles where there is none.
#include <windows.h>
#include <stdint.h>
#include <stdio.h>
#include <string.h>

#include "InkSlot.h"
#include "TavrinLib.h"
#include "TavrinRelease.h"

namespace {

int failures = 0;

void Report(bool passed, const char* what) {
  printf("%s  %s\n", passed ? "pass" : "FAIL", what);
  if (!passed) ++failures;
}

uint32_t SlotCount() {
  uint32_t count = 0;
  TavrinGetItemCountOfInkSlot(&count);
  return count;
}

InkSlot* SlotOf(uint32_t number) {
  InkSlot* slot = nullptr;
  TavrinGetInkSlot(number, &slot);
  return slot;
}

char* NameOf(const InkSlot* slot) {
  char* name = nullptr;
  int32_t size = 0;
  slot->GetInkName(&name, &size);
  return name;
}

/// An operation as it is found by who knows of no classes: an entry of the slot's table.
template <typename Operation>
Operation* EntryOf(const InkSlot* slot, int entry) {
  return reinterpret_cast<Operation*>((*reinterpret_cast<void* const* const*>(slot))[entry]);
}

bool AnswersAlike(const InkSlot* slot) {
  using GetCode = bool(const InkSlot*, uint32_t*);
  using GetText = bool(const InkSlot*, char**, int32_t*);
  uint32_t codes[4] = {1, 2, 3, 4};
  char* texts[4] = {};
  int32_t sizes[4] = {1, 2, 3, 4};
  slot->GetColorCode(&codes[0]);
  EntryOf<GetCode>(slot, 1)(slot, &codes[1]);
  slot->GetInkTypeCode(&codes[2]);
  EntryOf<GetCode>(slot, 2)(slot, &codes[3]);
  slot->GetInkId(&texts[0], &sizes[0]);
  EntryOf<GetText>(slot, 3)(slot, &texts[1], &sizes[1]);
  slot->GetInkName(&texts[2], &sizes[2]);
  EntryOf<GetText>(slot, 4)(slot, &texts[3], &sizes[3]);
  bool alike = slot->IsValid() == EntryOf<bool(const InkSlot*)>(slot, 5)(slot);
  for (int i = 0; i < 4; i += 2) {
    alike = alike && codes[i] == codes[i + 1] && sizes[i] == sizes[i + 1];
    alike = alike && (texts[i] == nullptr) == (texts[i + 1] == nullptr);
    alike = alike && (texts[i] == nullptr || strcmp(texts[i], texts[i + 1]) == 0);
  }
  for (char* text : texts)
    TavrinRelease(text);
  return alike;
}

bool AllAnswerAlike() {
  bool alike = SlotCount() != 0;
  for (uint32_t number = 1; number <= SlotCount(); ++number)
    alike = AnswersAlike(SlotOf(number)) && alike;
  return alike;
}

long HeapBlocks() {
  long blocks = 0;
  PROCESS_HEAP_ENTRY entry;
  memset(&entry, 0, sizeof entry);
  while (HeapWalk(GetProcessHeap(), &entry)) {
    if (entry.wFlags & PROCESS_HEAP_ENTRY_BUSY) ++blocks;
  }
  return blocks;
}

/// Whether release leaves as many blocks in the heap as there were before the array.
bool GivesBack(void (*release)(char* array)) {
  const long before = HeapBlocks();
  for (int round = 0; round < 100; ++round)
    release(NameOf(SlotOf(1)));
  return before != 0 && HeapBlocks() == before;
}

void CheckArrays() {
  char* name = NameOf(SlotOf(1));
  Report(HeapSize(GetProcessHeap(), 0, name) == strlen(name) + 1, "arrays lie in the process heap");
  TavrinRelease(name);
  Report(GivesBack([](char* array) { TavrinRelease(array); }), "TavrinRelease gives them back");
#if defined(_MSC_VER) && !defined(_DEBUG) && !defined(__MINGW64_VERSION_MAJOR)
  Report(GivesBack([](char* array) { delete[] array; }), "so does delete[] of this host's runtime");
#else
  printf("skip  delete[]: this host has not Microsoft's release runtime\n");
#endif
}

void ListInks() {
  for (uint32_t number = 1; number <= SlotCount(); ++number) {
    char* name = NameOf(SlotOf(number));
    printf("Slot %u: %s\n", number, name == nullptr ? "unknown ink" : name);
    TavrinRelease(name);
  }
}

void ListCategories() {
  uint32_t categories = 0;
  TavrinGetItemCountOfInkCategory(&categories);
  for (int32_t index = 0; index < static_cast<int32_t>(categories); ++index) {
    int32_t* numbers = nullptr;
    int32_t count = 0;
    TavrinGetInkSlotNumConposeInkCategory(index, &numbers, &count);
    printf("Category %d:", index);
    for (int32_t i = 0; i < count; ++i)
      printf(" %d", numbers[i]);
    printf("\n");
    TavrinRelease(numbers);
  }
}

}  // namespace

int main(int argc, char** argv) {
  if (argc != 2) {
    printf("usage: first_run DEFINITION\n");
    return 2;
  }
  const bool loaded = TavrinInitialize(argv[1]);
  Report(loaded, "the definition loads");
  if (loaded) {
    Report(AllAnswerAlike(), "slots answer the class and the table alike");
    CheckArrays();
    ListInks();
    ListCategories();
  }
  TavrinFinalize();
  return failures != 0;
}
