#include "commands/TemplateCommand.h"

#include "files/FileTransfer.h"
#include "keys/Template.h"

namespace tavrin::tool {

void PrintTemplate() {
  PrintText(MakeTemplate());
}

}  // namespace tavrin::tool
