#include "files/Arguments.h"

namespace tavrin::tool {

bool HasWholeArguments() {
  return true;
}

}  // namespace tavrin::tool
