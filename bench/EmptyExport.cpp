#include "EmptyExport.h"

bool EmptyExport(std::uint32_t* /*value*/) {
  return true;
}
