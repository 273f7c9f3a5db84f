// The types for loading at run time are those of the exports.
#include <type_traits>

#include "TavrinFunctions.h"

#define HAS_ITS_TYPE(name) \
  static_assert(std::is_same<name##Function, decltype(&name)>::value, #name);
TAVRIN_FUNCTIONS(HAS_ITS_TYPE)
