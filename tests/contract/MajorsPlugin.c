/* A plug-in that brings the next major version along. */
#include "TavrinLib.h"

__attribute__((visibility("default"))) uint32_t PluginModeCount(void) {
  uint32_t count = 0;
  TavrinGetModeCount(&count);
  return count;
}
