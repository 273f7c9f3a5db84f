// Both ways to name a public header lead to the same, and no way to a private one.
#include <TavrinLib/TavrinSession.h>

#include "TavrinSession.h"

#if __has_include("LibraryInstance.h") || __has_include("InkModel.h") ||                          \
                                                        __has_include("api/LibraryInstance.h") || \
                                                                      __has_include("exports.map")
#error "private files of TavrinLib are in reach"
#endif
static_assert(__cplusplus >= 202002L, "the host's own standard");

std::string FirstInk(const std::string& path) {
  return tavrinlib::Session(path).Slots().front().inkName;
}
