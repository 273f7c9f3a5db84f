#include <map>
#include <string>
#include <vector>

#include "check/Rules.h"
#include "definition/ValueConversion.h"
#include "keys/KeyFacts.h"
#include "util/TextUtilities.h"

namespace tavrin::tool {

namespace {

constexpr char kSlotCount[] = "PrinterInkSlotNum";

struct Table {
  const char* countKey;
  const char* entry;  ///< what the keys of its entries begin with
  const char* slotKey;
  const InkTable& entries;
};

/// The key beside that of a code.
std::string NameKeyOf(const WatchedRead& code) {
  return code.key.substr(0, code.key.size() - 4) + "Name";
}

/// The reads of the codes of a table, in the order of the entries.
std::vector<const WatchedRead*> CodesOf(const Reading& reading, const Table& table) {
  std::vector<const WatchedRead*> codes;
  for (const WatchedRead& read : reading.reads) {
    std::int32_t number = 0;
    const std::string shape = reading.KnownKeyOf(read.key, &number)->Shape();
    if (shape == std::string(table.entry) + "#Code") codes.push_back(&read);
  }
  return codes;
}

void CheckCount(const Check& check, const char* key) {
  const WatchedRead* count = check.reading.FindNumber(key);
  if (count == nullptr || count->number >= 1.0) return;
  check.Warn("count-below-one", key, "a count below 1 counts as missing",
             FactsOf(key).Outcome(*check.reading.config, 0), "write 1 or more, or remove the line");
}

/// What is amiss with half an entry is said of the other half.
void CheckMissingEntries(const Check& check, const Table& table) {
  const WatchedRead* count = check.reading.FindNumber(table.countKey);
  std::int32_t present = 0;
  for (const WatchedRead* code : CodesOf(check.reading, table)) {
    if (code->found || check.reading.lines.Find(NameKeyOf(*code)) != nullptr) ++present;
  }
  if (count == nullptr || count->number < 1.0 || count->number <= present) return;
  check.Warn("entries-missing", table.countKey, "fewer entries than it counts are there",
             "the printer gets " + std::to_string(table.entries.size()) + " of them",
             "write the missing entries or lower it");
}

/// What ids of inks of the type are as a number, which is what categories go by. In those of types
/// from -9 to -1 it ends at the sign.
std::int32_t IdNumber(const std::string& digits) {
  std::int32_t number = 0;
  ParseInt(digits + "001", &number);
  return number;
}

/// Ids hold the last three digits of both codes; categories hold the colour's whole code.
void CheckCodes(const Check& check, const Table& table) {
  const bool isColors = &table.entries == &check.reading.config->Colors;
  std::map<double, std::string> byCode;
  std::map<std::string, std::string> byLastDigits;
  std::map<std::int32_t, std::string> byIdNumber;
  for (const WatchedRead* code : CodesOf(check.reading, table)) {
    const WatchedRead* name = check.reading.Find(NameKeyOf(*code));
    if (!code->converted || name == nullptr || !name->found) continue;  // no entry came of it
    const std::string& key = code->key;
    std::string digits;
    FormatLastThreeDigits(static_cast<std::int32_t>(code->number), &digits);
    const auto [same, isNewCode] = byCode.emplace(code->number, key);
    const auto [similar, areNewDigits] = byLastDigits.emplace(digits, key);
    const auto [equal, isNewNumber] = byIdNumber.emplace(IdNumber(digits), key);
    const auto warn = [&](const char* rule, const std::string& what, const char* effect) {
      check.Warn(rule, key, what, effect, "give it a code of its own");
    };
    if (!isNewCode) {
      warn("same-code", "the code is that of " + same->second,
           "slots find the first of the two alone");
    } else if (!areNewDigits) {
      warn("same-digits", "the code ends in the same three digits as " + similar->second,
           isColors ? "inks that differ in it alone share one id"
                    : "inks that differ in it alone share one id and one category");
    } else if (!isNewNumber && !isColors) {
      warn("same-number", "ids with this code are the same number as those with " + equal->second,
           "inks that differ in it alone share one category");
    }
  }
}

/// Of a slot that is not valid, the code that its table lacks.
void CheckSlotCodes(const Check& check, const Table& table) {
  for (const auto& slot : check.reading.config->InkSlots) {
    const std::string number = std::to_string(slot->GetSlotNumber());
    const WatchedRead* read = check.reading.FindNumber(table.slotKey + number);
    const auto code = static_cast<std::int32_t>(read->number);
    if (slot->IsValid() || table.entries.Find(code) != nullptr) continue;
    check.Warn("unknown-code", read->key,
               Numbered(std::string("no ") + table.entry + "NNNCode is #", code),
               "slot " + number + " holds no known ink", "name a code of the table");
  }
}

void CheckBuiltInSlots(const Check& check) {
  std::string invalid;
  for (const auto& slot : check.reading.config->InkSlots) {
    if (!slot->IsValid()) invalid += ' ' + std::to_string(slot->GetSlotNumber());
  }
  if (invalid.empty()) return;
  check.Warn("slots-without-ink", kSlotCount, "the tables lack codes that the built-in slots name",
             "these slots hold no known ink:" + invalid, "write slots for the tables");
}

/// Whether the last of the slots that are counted could be read, which is when none stopped it.
bool HasSlotsOfItsOwn(const Reading& reading) {
  const WatchedRead* count = reading.FindNumber(kSlotCount);
  if (count == nullptr || count->number < 1.0) return false;
  const auto last = static_cast<std::int32_t>(count->number);
  return reading.FindNumber(Numbered("InkTypeCodeInkSlot#", last)) != nullptr;
}

void CheckCategories(const Check& check) {
  std::string empty;
  const auto& categories = check.reading.config->InkCategories;
  for (std::size_t i = 0; i < categories.size(); ++i) {
    if (!categories[i]->slots.empty()) continue;
    empty += (empty.empty() ? "" : " and ") + std::to_string(i) + ' ' + Quoted(categories[i]->name);
  }
  if (empty.empty()) return;
  check.Add("empty-category", Severity::Error, kSlotCount, "no slot is in ink category " + empty,
            "the query for its slots fails", "give a slot an ink of that category");
}

}  // namespace

void CheckInks(const Check& check) {
  const Table tables[] = {
      {"NumOfColor", "Color", "ColorCodeInkSlot", check.reading.config->Colors},
      {"NumOfInkType", "InkType", "InkTypeCodeInkSlot", check.reading.config->InkTypes},
  };
  const bool hasSlots = HasSlotsOfItsOwn(check.reading);
  for (const Table& table : tables) {
    CheckCount(check, table.countKey);
    CheckMissingEntries(check, table);
    CheckCodes(check, table);
    if (hasSlots) CheckSlotCodes(check, table);
  }
  CheckCount(check, kSlotCount);
  if (!hasSlots) CheckBuiltInSlots(check);
  CheckCategories(check);
}

}  // namespace tavrin::tool
