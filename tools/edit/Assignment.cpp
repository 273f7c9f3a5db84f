#include "edit/Assignment.h"

#include "check/LineIndex.h"
#include "definition/IniEdit.h"
#include "definition/PrinterKeys.h"

namespace tavrin::tool {

std::string Written(const std::string& value) {
  const bool isQuoted = value.size() >= 2 && value.front() == value.back() &&
                        (value.front() == '"' || value.front() == '\'');
  return isQuoted || Trim(value) != value ? '"' + value + '"' : value;
}

Bytes Assigned(const Bytes& plain, const Assignment& assignment) {
  std::optional<std::string> value;
  if (assignment.value) value = Written(*assignment.value);
  const std::string edited =
      EditIni(std::string(plain.begin(), plain.end()), kPrinterSection, assignment.key, value);
  return Bytes(edited.begin(), edited.end());
}

}  // namespace tavrin::tool
