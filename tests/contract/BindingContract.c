/* A host that knows the library from docs/binary-contract.md alone: ContractTables.h is made of the
   document's tables, in which a wrong line does not compile, link or answer. */
#include <stdio.h>
#include <string.h>

#include "ContractTables.h"
#include "InkSlot.h"
#include "TavrinLib.h"
#include "TavrinRelease.h"

#define HAS_BYTES(type, bytes) &&sizeof(type) == (bytes)
#define HAS_VALUE(code, name) &&name == (code)
typedef char
    TypesAndCodesAreAsDocumented[1 TAVRIN_TYPES(HAS_BYTES) TAVRIN_CODES(HAS_VALUE) ? 1 : -1];

/* Declaring a function once more with other parameters is an error. */
#define DECLARE(name, parameters) TAVRIN_API bool name parameters;
TAVRIN_EXPORTS(DECLARE)

typedef void Function(void);
#define REFER(name, parameters) (Function*)name,
static Function* const volatile exports[] = {TAVRIN_EXPORTS(REFER)};

#define CALL_TYPE(name, parameters, entry) \
  enum { name##Entry = entry };            \
  typedef bool name##Call parameters;
TAVRIN_SLOT_TABLE(CALL_TYPE)
#define ASK(slot, name) ((name##Call*)(*(Function***)(slot))[name##Entry])

static int Fail(const char* what) {
  fprintf(stderr, "unexpected: %s\n", what);
  return 1;
}

static int CheckText(const char* expected, char* text, int32_t size) {
  const int failures = !text || strcmp(text, expected) != 0 || size != (int32_t)strlen(expected) + 1
                           ? Fail(expected)
                           : 0;
  TavrinRelease(text);
  return failures;
}

static int CheckSlot(InkSlot* slot) {
  uint32_t color = 0, ink = 0;
  char *id = NULL, *name = NULL;
  int32_t idSize = 0, nameSize = 0;
  if (!ASK(slot, GetColorCode)(slot, &color) || color != 1) return Fail("colour");
  if (!ASK(slot, GetInkTypeCode)(slot, &ink) || ink != 201) return Fail("ink type");
  if (!ASK(slot, IsValid)(slot)) return Fail("not valid");
  if (!ASK(slot, GetInkId)(slot, &id, &idSize)) return Fail("no id");
  if (!ASK(slot, GetInkName)(slot, &name, &nameSize)) return Fail("no name");
  return CheckText("201001", id, idSize) + CheckText("MB-100 Cyan", name, nameSize);
}

int main(int argc, char** argv) {
  InkSlot* slot = NULL;
  int failures = 0;
  if (argc != 2) return 2;
  for (size_t i = 0; i < sizeof exports / sizeof *exports; ++i)
    if (!exports[i]) return Fail("no export");
  if (!TavrinInitialize(argv[1]) || !TavrinGetInkSlot(5, &slot)) return Fail("not loaded");
  failures = CheckSlot(slot);
  TavrinFinalize();
  return failures;
}
