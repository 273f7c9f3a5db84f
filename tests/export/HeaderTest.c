/* A host in C99. An export that the library lacks fails at link. */
#include <stdio.h>
#include <string.h>

#include "TavrinFunctions.h"
#include "TavrinLib.h"

typedef void (*AnyFunction)(void);

/* Volatile, or else the compiler would drop the table for knowing that no address is null. */
#define ADDRESS(name) (AnyFunction) name,
static volatile AnyFunction exports[] = {TAVRIN_FUNCTIONS(ADDRESS)};

static int failures = 0;

static void Expect(bool condition, const char* what) {
  if (!condition) {
    ++failures;
    printf("failed: %s\n", what);
  }
}

/* What the cipher adds to the first bytes of every definition file. */
static const unsigned char kKeystream[] = {0x71, 0xdf, 0x95, 0x84, 0x04, 0x19, 0x8b,
                                           0xe5, 0x4b, 0x20, 0xbf, 0x60, 0x42, 0xf2,
                                           0xf4, 0xa9, 0xb6, 0x50, 0x72, 0xb3};
static const char kPlain[] = "[printer]\nVersion=1\n";
static const char kDefinition[] = "header_test.def";
static const char kConditions[] = "header_test.conditions";

static void WriteDefinition(void) {
  FILE* file = fopen(kDefinition, "wb");
  for (size_t i = 0; file && i < sizeof kKeystream; ++i) {
    fputc((unsigned char)kPlain[i] ^ kKeystream[i], file);
  }
  Expect(file && fclose(file) == 0, "writing the definition");
}

static void ExpectConditions(void) {
  char bytes[sizeof kKeystream + 1] = {0};
  FILE* file = fopen(kConditions, "rb");
  Expect(file && fread(bytes, 1, sizeof bytes, file) == sizeof kKeystream, "conditions' size");
  for (size_t i = 0; i < sizeof kKeystream; ++i) {
    Expect((bytes[i] ^ kPlain[i]) == (char)kKeystream[i], "conditions' bytes");
  }
  if (file) fclose(file);
}

static void AskEachGroup(void) {
  char info[384];
  double band = 0;
  uint32_t count = 0;
  InkSlot* slot = NULL;
  WriteDefinition();
  Expect(TavrinInitialize(kDefinition), "initialising");
  Expect(TavrinGetInfo(info) && strcmp(info + 128, "1") == 0, "the printer's version");
  Expect(TavrinGetHeadBandSize(&band) && band == 53.7, "head band");
  Expect(TavrinGetItemCountOfInkSlot(&count) && count == 8, "number of ink slots");
  Expect(TavrinGetInkSlot(count, &slot) && slot, "the last ink slot");
  Expect(TavrinCreateModelingConditionsFile(kConditions), "writing the conditions");
  ExpectConditions();
  Expect(TavrinFinalize(), "finalising");
  remove(kDefinition);
  remove(kConditions);
}

int main(void) {
  uint32_t code = 99;
  uint32_t count = 99;
  Expect(sizeof(bool) == 1, "results are one byte");
  Expect(TavrinGetLastError(&code) && code == ErrorNone, "no failure yet");
  Expect(!TavrinGetModeCount(&count) && count == 0, "no definition is loaded");
  Expect(TavrinGetLastError(&code) && code == ErrorNotInitialized, "the failure is recorded");
  for (size_t i = 0; i < sizeof exports / sizeof exports[0]; ++i) {
    Expect(exports[i] != 0, "an export has an address");
  }
  AskEachGroup();
  return failures != 0;
}
