#include "keys/KnownKeys.h"

#include <algorithm>

#include "check/LineIndex.h"
#include "definition/PrinterConfig.h"
#include "definition/TextConversion.h"
#include "definition/ValueConversion.h"
#include "util/TextUtilities.h"

namespace tavrin::tool {

namespace {

/// A definition in which every key counts or names one thing, and that is number 1.
class AnsweringIni : public IniFile {
 public:
  using IniFile::ReadString;
  bool ReadString(const wchar_t* /*section*/, const wchar_t* key, std::wstring* value) override {
    keys.push_back(NarrowCopy(key));
    *value = L"1,1,1";
    return true;
  }

  std::vector<std::string> keys;
};

KnownKey KnownKeyOf(const std::string& name) {
  for (const std::string number : {"001", "1"}) {
    const std::size_t at = name.find(number);
    if (at == std::string::npos) continue;
    return {name.substr(0, at), name.substr(at + number.size()), static_cast<int>(number.size())};
  }
  return {name};
}

}  // namespace

std::string KnownKey::WithNumber(std::int32_t number) const {
  if (digits == 0) return prefix;
  return prefix + (digits == 3 ? FormatThreeDigits(number) : IntToString(number)) + suffix;
}

bool KnownKey::Matches(const std::string& name, std::int32_t* number) const {
  *number = 0;
  if (Folded(name.substr(0, prefix.size())) != Folded(prefix)) return false;
  const bool isNumbered = digits != 0 && name.size() > prefix.size();
  if (isNumbered && !ParseInt(name.substr(prefix.size()), number)) return false;
  return Folded(WithNumber(*number)) == Folded(name);
}

std::vector<KnownKey> ListKnownKeys() {
  AnsweringIni ini;
  PrinterConfig().ParseOpened(ini);
  std::vector<KnownKey> known;
  for (const std::string& name : ini.keys) {
    const KnownKey key = KnownKeyOf(name);
    const bool isKnown = std::any_of(known.begin(), known.end(), [&](const KnownKey& other) {
      return other.Shape() == key.Shape();
    });
    if (!isKnown) known.push_back(key);
  }
  return known;
}

}  // namespace tavrin::tool
