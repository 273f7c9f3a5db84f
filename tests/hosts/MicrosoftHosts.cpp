#include "hosts/Hosts.h"

namespace tavrin::test {

std::vector<Host> Hosts() {
  return {{"C", AskSlotInC, AskCategoryInC},
          {"Microsoft's C++", AskSlotInMicrosoftsCpp, AskCategoryInMicrosoftsCpp}};
}

}  // namespace tavrin::test
