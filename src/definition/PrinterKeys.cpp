#include "definition/PrinterKeys.h"

#include "definition/IntegerConversion.h"
#include "definition/ValueConversion.h"
#include "definition/WideText.h"

namespace tavrin {

bool ReadMicrometres(IniFile& ini, const std::string& key, std::int32_t* field) {
  double millimetres = 0.0;
  if (!ini.ReadDouble(kPrinterSection, key, &millimetres)) return false;
  *field = ToMicrometres(millimetres);
  return true;
}

bool ReadList(IniFile& ini, const std::string& key, std::vector<std::string>* fields) {
  std::string text;
  return ini.ReadString(kPrinterSection, key, &text) && Split(text, fields);
}

bool ParseField(const std::string& field, std::int32_t* value) {
  return ParseInt(WideText(field).c_str(), value);
}

bool ParseField(const std::string& field, double* value) {
  return ParseDouble(WideText(field).c_str(), value);
}

}  // namespace tavrin
