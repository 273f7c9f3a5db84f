#include "files/StandardStreams.h"

#include <cstdlib>
#include <cstring>

#include <langinfo.h>
#include <locale.h>
#include <unistd.h>

namespace tavrin::tool {

void MakeStandardOutputBinary() {
}

void MakeStandardInputBinary() {
}

bool IsTerminal() {
  return isatty(STDOUT_FILENO) == 1;
}

bool PrepareTerminalColors() {
  return IsTerminal();
}

bool TakesUtf8() {
  if (!IsTerminal() && isatty(STDERR_FILENO) == 0) return true;
  const locale_t locale = newlocale(LC_CTYPE_MASK, "", nullptr);
  if (locale == nullptr) return false;
  const bool isUtf8 = std::strcmp(nl_langinfo_l(CODESET, locale), "UTF-8") == 0;
  freelocale(locale);
  return isUtf8;
}

std::string EnvironmentValue(const char* name) {
  const char* value = std::getenv(name);
  return value == nullptr ? "" : value;
}

}  // namespace tavrin::tool
