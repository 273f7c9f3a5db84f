#include <cstdint>
#include <map>
#include <set>
#include <string>
#include <vector>

#include "check/LineEdits.h"
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
  const char* noun;  ///< of an entry
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
  check.Warn(
      "entries-missing", table.countKey, "fewer entries than it counts are there",
      "the printer gets " + (table.entries.size() == 0 ? std::string("no ") + table.noun + 's'
                                                       : Counted(table.entries.size(), table.noun)),
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

/// A slot whose codes are each one of the other table.
///
/// @return whether it is such a one.
bool CheckSwappedCodes(const Check& check, std::int32_t slot) {
  const PrinterConfig& config = *check.reading.config;
  const WatchedRead* color = check.reading.FindNumber(Numbered("ColorCodeInkSlot#", slot));
  const WatchedRead* type = check.reading.FindNumber(Numbered("InkTypeCodeInkSlot#", slot));
  const auto colorCode = static_cast<std::int32_t>(color->number);
  const auto typeCode = static_cast<std::int32_t>(type->number);
  if (config.Colors.Find(colorCode) != nullptr || config.InkTypes.Find(typeCode) != nullptr ||
      config.Colors.Find(typeCode) == nullptr || config.InkTypes.Find(colorCode) == nullptr)
    return false;
  Finding& finding = check.Warn(
      "unknown-code", color->key, "the codes of colour and ink type have changed places",
      Numbered("slot # holds no known ink", slot),
      Numbered("write # here and ", typeCode) + Numbered("# for ", colorCode) + type->key);
  const KeyLine* colorLine = check.reading.lines.Find(color->key);
  const KeyLine* typeLine = check.reading.lines.Find(type->key);
  if (colorLine == nullptr || typeLine == nullptr) return true;
  AddValueEdit(*typeLine, kWholeValue, std::to_string(colorCode), Certainty::Certain, &finding);
  AddValueEdit(*colorLine, kWholeValue, std::to_string(typeCode), Certainty::Certain, &finding);
  return true;
}

/// Of a slot that is not valid, the code that its table lacks.
void CheckSlotCodes(const Check& check, const Table& table, const std::set<std::int32_t>& judged) {
  for (const auto& slot : check.reading.config->InkSlots) {
    const std::string number = std::to_string(slot->GetSlotNumber());
    const WatchedRead* read = check.reading.FindNumber(table.slotKey + number);
    const auto code = static_cast<std::int32_t>(read->number);
    if (slot->IsValid() || table.entries.Find(code) != nullptr ||
        judged.count(static_cast<std::int32_t>(slot->GetSlotNumber())) != 0)
      continue;
    check.Warn("unknown-code", read->key,
               Numbered(std::string("no ") + table.entry + "NNNCode is #", code),
               "slot " + number + " holds no known ink", "name a code of the table");
  }
}

void CheckBuiltInSlots(const Check& check) {
  const auto& slots = check.reading.config->InkSlots;
  std::string invalid;
  std::size_t count = 0;
  for (const auto& slot : slots) {
    if (slot->IsValid()) continue;
    invalid += ' ' + std::to_string(slot->GetSlotNumber());
    ++count;
  }
  if (invalid.empty()) return;
  Finding& finding = check.Warn(
      "slots-without-ink", kSlotCount, "the tables lack codes that the built-in slots name",
      "these slots hold no known ink:" + invalid, "write slots for the tables");
  finding.sum = count == slots.size() ? "no slot holds a known ink"
                : count == 1          ? "1 slot holds no known ink"
                                      : std::to_string(count) + " slots hold no known ink";
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
  std::size_t count = 0;
  const auto& categories = check.reading.config->InkCategories;
  for (std::size_t i = 0; i < categories.size(); ++i) {
    if (!categories[i]->slots.empty()) continue;
    ++count;
    empty += (empty.empty() ? "" : " and ") + std::to_string(i) + ' ' + Quoted(categories[i]->name);
  }
  if (empty.empty()) return;
  const bool isOne = count == 1;
  Finding& finding = check.Add(
      "empty-category", Severity::Error, kSlotCount, "no slot is in ink category " + empty,
      isOne ? "the query for its slots fails" : "the queries for their slots fail",
      "give a slot an ink of that category");
  finding.sum = count == categories.size()
                    ? "no ink category has a slot"
                    : std::to_string(count) + " of " + std::to_string(categories.size()) +
                          " ink categories " + (isOne ? "has" : "have") + " no slot";
  finding.sum += ", so " + finding.effect;
}

}  // namespace

void CheckInks(const Check& check) {
  const Table tables[] = {
      {"NumOfColor", "Color", "ColorCodeInkSlot", "colour", check.reading.config->Colors},
      {"NumOfInkType", "InkType", "InkTypeCodeInkSlot", "ink type", check.reading.config->InkTypes},
  };
  const bool hasSlots = HasSlotsOfItsOwn(check.reading);
  std::set<std::int32_t> swapped;
  for (const auto& slot : check.reading.config->InkSlots) {
    const auto number = static_cast<std::int32_t>(slot->GetSlotNumber());
    if (hasSlots && !slot->IsValid() && CheckSwappedCodes(check, number)) swapped.insert(number);
  }
  for (const Table& table : tables) {
    CheckCount(check, table.countKey);
    CheckMissingEntries(check, table);
    CheckCodes(check, table);
    if (hasSlots) CheckSlotCodes(check, table, swapped);
  }
  CheckCount(check, kSlotCount);
  if (!hasSlots) CheckBuiltInSlots(check);
  CheckCategories(check);
}

}  // namespace tavrin::tool
