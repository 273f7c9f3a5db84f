#include "definition/InkSection.h"

#include <algorithm>
#include <numeric>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "definition/PrinterKeys.h"
#include "definition/ValueConversion.h"
#include "util/TextUtilities.h"

namespace tavrin {

namespace {

/// The indices from 1 to count that can have an entry, in rising order. A count may be far beyond
/// the entries that are there, so one that no machine has is held against the keys.
std::vector<std::int32_t> EntryIndices(IniFile& ini, const std::string& prefix,
                                       std::int32_t count) {
  constexpr std::int32_t kMostOfAMachine = 64;
  std::vector<std::int32_t> indices;
  if (count <= kMostOfAMachine) {
    indices.resize(static_cast<std::size_t>(count));
    std::iota(indices.begin(), indices.end(), 1);
    return indices;
  }
  ini.ListKeys(kPrinterSection, [&](std::wstring_view key) {
    // Another key's number may slip in here; it finds no entry when it is read.
    if (key.size() <= prefix.size() || key[prefix.size()] < L'0' || key[prefix.size()] > L'9')
      return;
    std::int32_t index = 0;
    if (ParseInt(key.substr(prefix.size()), &index) && index >= 1 && index <= count)
      indices.push_back(index);
  });
  std::sort(indices.begin(), indices.end());
  indices.erase(std::unique(indices.begin(), indices.end()), indices.end());
  return indices;
}

/// Reads the entries of a table.
///
/// @return false, table untouched, when the definition has no count of at least 1.
bool ReadTable(IniFile& ini, const std::string& countKey, const std::string& prefix,
               InkTable* table) {
  std::int32_t count = 0;
  if (!ini.ReadInt(kPrinterSection, countKey, &count) || count < 1) return false;
  table->Clear();
  for (const std::int32_t index : EntryIndices(ini, prefix, count)) {
    const std::string entry = prefix + FormatThreeDigits(index);
    std::int32_t code = 0;
    std::string name;
    if (ini.ReadInt(kPrinterSection, entry + "Code", &code) &&
        ini.ReadString(kPrinterSection, entry + "Name", &name)) {
      table->Add(code, std::move(name));
    }
  }
  return true;
}

/// The keys of a name and a number, one at a time.
class NumberedKey {
 public:
  explicit NumberedKey(const char* name) : key_(name), nameLength_(key_.size()) {}

  const std::string& With(std::int32_t number) {
    key_.resize(nameLength_);
    return key_ += IntToString(number);
  }

 private:
  std::string key_;
  std::size_t nameLength_;
};

/// Reads the slots up to the first that is not complete.
///
/// @return whether there is a count of at least 1 and every slot up to it is complete.
bool ReadCountedInkSlots(IniFile& ini, InkModel* inks) {
  std::int32_t count = 0;
  if (!ini.ReadInt(kPrinterSection, "PrinterInkSlotNum", &count) || count < 1) return false;
  inks->InkSlotNum = count;
  NumberedKey colorKey("ColorCodeInkSlot");
  NumberedKey inkTypeKey("InkTypeCodeInkSlot");
  // The count may be INT32_MAX, so a number is compared before it is raised.
  for (std::int32_t number = 0; number < count;) {
    ++number;
    std::int32_t color = 0;
    std::int32_t inkType = 0;
    if (!ini.ReadInt(kPrinterSection, colorKey.With(number), &color) ||
        !ini.ReadInt(kPrinterSection, inkTypeKey.With(number), &inkType))
      return false;
    inks->AddInkSlot(static_cast<std::uint32_t>(number), static_cast<std::uint32_t>(color),
                     static_cast<std::uint32_t>(inkType));
  }
  return true;
}

}  // namespace

bool ReadColors(IniFile& ini, InkModel* inks) {
  if (!ReadTable(ini, "NumOfColor", "Color", &inks->Colors)) inks->SetDefaultColors();
  return true;
}

bool ReadInkTypes(IniFile& ini, InkModel* inks) {
  if (!ReadTable(ini, "NumOfInkType", "InkType", &inks->InkTypes)) inks->SetDefaultInkTypes();
  return true;
}

bool ReadInkSlots(IniFile& ini, InkModel* inks) {
  inks->InkSlots.clear();
  inks->InkSlotNum = 0;
  const bool complete = ReadCountedInkSlots(ini, inks);
  if (!complete) inks->SetDefaultInkSlots();
  return complete;
}

}  // namespace tavrin
