#include "sheet/InkRack.h"

#include <algorithm>
#include <set>
#include <vector>

#include "sheet/InkColor.h"

namespace tavrin::tool {

namespace {

/// So many slots are legible beside each other on a telephone.
constexpr std::size_t kSlotsBeside = 8;

using Slots = std::vector<tavrinlib::Slot>;

/// The columns, from 1, of the slots that a category has in a part of the rack.
std::set<std::size_t> ColumnsOf(const tavrinlib::Category& category, const Slots& slots,
                                std::size_t first, std::size_t end) {
  std::set<std::size_t> columns;
  for (std::size_t i = first; i < end; ++i) {
    if (std::find(category.begin(), category.end(), slots[i].number) != category.end())
      columns.insert(i - first + 1);
  }
  return columns;
}

Html Cell(const Html& style, std::size_t row, std::size_t column, std::size_t end,
          const Html& content) {
  const auto number = [](std::size_t n) { return Html::Number(static_cast<std::int64_t>(n)); };
  return content.In(Html("div class=\"") + style + "\" style=\"grid-row:" + number(row) +
                    ";grid-column:" + number(column) + "/" + number(end) + "\"");
}

/// A bar over each run of slots beside each other, and a thread through all.
Html CategoryCells(const std::set<std::size_t>& columns, std::size_t row, const Html& label) {
  Html cells = Cell("thread", row, *columns.begin(), *columns.rbegin() + 1, {});
  bool isLabelled = false;
  for (auto column = columns.begin(); column != columns.end();) {
    const std::size_t begin = *column;
    std::size_t end = begin;
    while (column != columns.end() && *column == end) {
      ++column;
      ++end;
    }
    cells += Cell("category", row, begin, end, isLabelled ? Html() : label);
    isLabelled = true;
  }
  return cells;
}

/// Categories that leave each other room share a row.
class Rows {
 public:
  /// The row, from 1, that has room for the columns.
  std::size_t Place(const std::set<std::size_t>& columns) {
    for (std::size_t row = 0;; ++row) {
      if (row == ends_.size()) ends_.push_back(0);
      if (ends_[row] >= *columns.begin()) continue;
      ends_[row] = *columns.rbegin();
      return row + 1;
    }
  }
  std::size_t Count() const { return ends_.size(); }

 private:
  std::vector<std::size_t> ends_;
};

Html Tank(const DefinitionFacts& facts, const tavrinlib::Slot& slot) {
  const Html name = slot.valid ? Html::Text(slot.inkName) : Html("unknown ink");
  return Html::Number(slot.number).In("b") + Swatch(ColorNameOf(facts, slot), slot.valid) +
         name.In("span");
}

}  // namespace

std::string ColorNameOf(const DefinitionFacts& facts, const tavrinlib::Slot& slot) {
  if (!slot.valid) return {};
  for (const InkEntryFacts& color : facts.hidden.colors) {
    if (std::find(color.slots.begin(), color.slots.end(), slot.number) != color.slots.end())
      return color.name;
  }
  return slot.inkName;
}

Html CategoryName(const DefinitionFacts& facts, std::size_t index) {
  const auto& names = facts.hidden.categoryNames;
  if (index >= names.size() || names[index].empty()) return "unknown ink";
  return Html::Text(names[index]);
}

Html InkRack(const DefinitionFacts& facts) {
  const Slots& slots = facts.printer.slots;
  Html racks;
  for (std::size_t first = 0; first < slots.size(); first += kSlotsBeside) {
    const std::size_t end = std::min(first + kSlotsBeside, slots.size());
    Rows rows;
    Html cells;
    for (std::size_t i = 0; i < facts.printer.categories.size(); ++i) {
      const auto columns = ColumnsOf(facts.printer.categories[i], slots, first, end);
      if (columns.empty()) continue;
      const Html label = Html::Number(static_cast<std::int64_t>(i)).In("b") +
                         (Html(" ") + CategoryName(facts, i)).In("span");
      cells += CategoryCells(columns, rows.Place(columns), label);
    }
    for (std::size_t i = first; i < end; ++i)
      cells += Cell("tank", rows.Count() + 1, i - first + 1, i - first + 2, Tank(facts, slots[i]));
    racks += cells.In("div class=\"rack\"");
  }
  return racks;
}

}  // namespace tavrin::tool
