/* A host of this major version, before and after it loads a plug-in of the next one. */
#include <dlfcn.h>
#include <stdio.h>

#include "TavrinLib.h"

static bool IsMine(void) {
  uint32_t count = 9;
  return !TavrinGetModeCount(&count) && count == 0;
}

int main(int argc, char** argv) {
  const bool isMineBefore = IsMine();
  void* plugin = argc == 2 ? dlopen(argv[1], RTLD_NOW) : NULL;
  uint32_t (*pluginModeCount)(void) = NULL;
  if (!plugin) return fprintf(stderr, "%s\n", dlerror());
  *(void**)&pluginModeCount = dlsym(plugin, "PluginModeCount");
  printf("host %d %d, plug-in %u\n", isMineBefore, IsMine(), (unsigned)pluginModeCount());
  return 0;
}
