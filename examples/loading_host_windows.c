#include <windows.h>
#include <stddef.h>
#include <string.h>

#include "TavrinVersion.h"
#include "loading_host.h"

/* Not from the current directory or from PATH, where a file of that name could be anybody's. */
void* OpenLibrary(const char* file) {
  return LoadLibraryExA(file ? file : "TavrinLib.dll", NULL, LOAD_LIBRARY_SEARCH_DEFAULT_DIRS);
}

void CloseLibrary(void* library) {
  FreeLibrary(library);
}

/* The version resource of the file, as it lies in memory. */
bool HasThisInterface(void* library) {
  const struct {
    WORD sizes[3];
    WCHAR key[17];
    VS_FIXEDFILEINFO version;
  }* info = NULL;
  HRSRC resource = FindResourceA(library, MAKEINTRESOURCEA(VS_VERSION_INFO), MAKEINTRESOURCEA(16));
  if (resource) info = LockResource(LoadResource(library, resource));
  return info && HIWORD(info->version.dwFileVersionMS) == TAVRIN_VERSION_MAJOR;
}

void FindFunction(void* library, const char* name, void* pointer) {
  const FARPROC address = GetProcAddress(library, name);
  memcpy(pointer, &address, sizeof address);
}
