/* Loading the library while the host runs: what differs between the systems. */
#ifndef LOADING_HOST_H
#define LOADING_HOST_H

#include <stdbool.h>

/* Loads the library of a file, or without one that which the system finds by its name; null where
   there is none. */
void* OpenLibrary(const char* file);

void CloseLibrary(void* library);

/* Tells whether it is a TavrinLib with the binary interface that this host was compiled for. */
bool HasThisInterface(void* library);

/* Stores the address of a function in a pointer, or null where the library has none of that name.
 */
void FindFunction(void* library, const char* name, void* pointer);

#endif
