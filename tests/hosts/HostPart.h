/* What a host asks of the inks, in each way that there is: in C, in C++ and, on Windows, in C++
   with the binary interface of Microsoft's compiler. Each part releases what it is handed out. */
#ifndef TAVRIN_TEST_HOST_PART_H
#define TAVRIN_TEST_HOST_PART_H

#ifndef __cplusplus
#include <stdbool.h>
#endif
#include <stdint.h>

/* How much of an answer is kept. */
enum { kKept = 32 };

struct SlotAnswer {
  bool succeeded; /* each operation did */
  bool valid;
  uint32_t color;
  uint32_t inkType;
  int32_t idSize;
  int32_t nameSize;
  char id[kKept];
  char name[kKept];
};

struct CategoryAnswer {
  bool succeeded;
  int32_t count;
  int32_t numbers[kKept];
};

#ifdef __cplusplus
extern "C" {
#endif

void AskSlotInC(uint32_t number, struct SlotAnswer* answer);
void AskCategoryInC(int32_t index, struct CategoryAnswer* answer);

void AskSlotInCpp(uint32_t number, struct SlotAnswer* answer);
void AskCategoryInCpp(int32_t index, struct CategoryAnswer* answer);

void AskSlotInMicrosoftsCpp(uint32_t number, struct SlotAnswer* answer);
void AskCategoryInMicrosoftsCpp(int32_t index, struct CategoryAnswer* answer);
/* What no host should do: the slot stays the library's. */
void DeleteSlotInMicrosoftsCpp(uint32_t number);

#ifdef __cplusplus
}
#endif

#endif
