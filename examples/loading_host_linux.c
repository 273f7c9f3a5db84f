#define _GNU_SOURCE /* dlvsym */
#include <dlfcn.h>
#include <stddef.h>
#include <string.h>

#include "TavrinVersion.h"
#include "loading_host.h"

#define TEXT_OF(number) #number
#define FILE_OF(major) "libTavrinLib.so." TEXT_OF(major)

void* OpenLibrary(const char* file) {
  return dlopen(file ? file : FILE_OF(TAVRIN_VERSION_MAJOR), RTLD_NOW);
}

void CloseLibrary(void* library) {
  dlclose(library);
}

/* The exports carry the version of the interface. */
bool HasThisInterface(void* library) {
  return dlvsym(library, "TavrinInitialize", TAVRIN_VERSION_NODE) != NULL;
}

void FindFunction(void* library, const char* name, void* pointer) {
  void* address = dlsym(library, name);
  memcpy(pointer, &address, sizeof address);
}
