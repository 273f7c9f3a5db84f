#include "commands/TemplateCommand.h"

#include "files/FileTransfer.h"
#include "keys/Template.h"

namespace tavrin::tool {

Command TemplateCommand() {
  return {
      "template",
      "Print a plain INI file to make a definition from",
      {},
      "It has every key, with meaning, unit, default and range. As it stands it loads to the\n"
      "library's own defaults: change the values that differ in your printer, and take away the\n"
      "';' before the keys that it needs. tavrin check then tells what the library makes of it;\n"
      "docs/definition-file.md has the rules in full.\n\n"
      "Example: tavrin template > printer.ini\n"
      "         tavrin check printer.ini\n"
      "         tavrin encipher printer.ini printer.dat",
      [] {
        PrintText(MakeTemplate());
        return ExitStatus::NothingToReport;
      }};
}

}  // namespace tavrin::tool
