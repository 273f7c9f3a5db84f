#include <malloc.h>

#include "hosts/Hosts.h"

namespace tavrin::test {

std::vector<Host> Hosts() {
  return {{"C", AskSlotInC, AskCategoryInC}, {"C++", AskSlotInCpp, AskCategoryInCpp}};
}

std::size_t HeapInUse() {
  return mallinfo2().uordblks;
}

}  // namespace tavrin::test
