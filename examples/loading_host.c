/* A host in C that links nothing: it loads the library while it runs, sees that it is the right one
   and asks for the build volume. */
#include "loading_host.h"

#include <inttypes.h>
#include <stdio.h>

#include "TavrinFunctions.h"

static struct TavrinFunctions tavrin;

static bool FindFunctions(void* library) {
#define FIND(name)                            \
  FindFunction(library, #name, &tavrin.name); \
  if (!tavrin.name) {                         \
    fprintf(stderr, "it lacks %s\n", #name);  \
    return false;                             \
  }
  TAVRIN_FUNCTIONS(FIND)
  return true;
}

/* Reports a failed call; its reason is fresh. */
static bool Fail(const char* call) {
  uint32_t code = ErrorNone;
  tavrin.TavrinGetLastError(&code);
  fprintf(stderr, "%s failed: error %" PRIu32 "\n", call, code);
  return false;
}

static bool PrintBuildVolume(const char* definition) {
  uint32_t x = 0, y = 0, z = 0;
  if (!tavrin.TavrinInitialize(definition)) return Fail("TavrinInitialize");
  if (!tavrin.TavrinGetAreaSize(&x, &y, &z)) return Fail("TavrinGetAreaSize");
  printf("Builds %.3f x %.3f x %.3f mm\n", x / 1000.0, y / 1000.0, z / 1000.0);
  return tavrin.TavrinFinalize();
}

static bool Use(void* library, const char* definition) {
  if (!HasThisInterface(library)) {
    fprintf(stderr, "it is no TavrinLib %d\n", TAVRIN_VERSION_MAJOR);
    return false;
  }
  return FindFunctions(library) && PrintBuildVolume(definition);
}

int main(int argc, char** argv) {
  void* library = NULL;
  bool succeeded = false;
  if (argc != 2 && argc != 3) {
    fprintf(stderr, "usage: loading_host DEFINITION [LIBRARY]\n");
    return 2;
  }
  library = OpenLibrary(argc == 3 ? argv[2] : NULL);
  if (!library) {
    fprintf(stderr, "the library does not load\n");
    return 1;
  }
  succeeded = Use(library, argv[1]);
  CloseLibrary(library);
  return succeeded ? 0 : 1;
}
