#include "sheet/InkSection.h"

#include "sheet/Elements.h"
#include "sheet/InkColor.h"
#include "sheet/InkRack.h"

namespace tavrin::tool {

namespace {

Html SlotTable(const DefinitionFacts& facts) {
  Html rows;
  for (const tavrinlib::Slot& slot : facts.printer.slots) {
    const Html name =
        (Swatch(ColorNameOf(facts, slot), slot.valid) + Html::Number(slot.number).In("span"))
            .In("div class=\"slot\"");
    rows += (name.In("th scope=\"row\"") +
             (slot.valid ? Html::Text(slot.inkName) : Html("unknown ink")).In("td") +
             Html::Text(slot.inkId).In("td class=\"id\"") + Html::Number(slot.colorCode).In("td") +
             Html::Number(slot.inkTypeCode).In("td"))
                .In("tr");
  }
  return Table("slots", Html("Swatches show the colour that a name says, not how it prints."),
               {"Slot", "Ink", "Ink id", "Colour code", "Ink type code"}, rows);
}

Html CategoryTable(const DefinitionFacts& facts) {
  Html rows;
  for (std::size_t i = 0; i < facts.printer.categories.size(); ++i) {
    Html slots;
    for (const std::uint32_t number : facts.printer.categories[i])
      slots += (slots.IsEmpty() ? Html() : Html(", ")) + Html::Number(number);
    rows += (Html::Number(static_cast<std::int64_t>(i)).In("th scope=\"row\"") +
             CategoryName(facts, i).In("td") + (slots.IsEmpty() ? Html("none") : slots).In("td"))
                .In("tr");
  }
  return Table("categories", "Hosts get the slots of a category, not its name.",
               {"Index", "Category", "Slots"}, rows);
}

Html BuiltInTables(const HiddenFacts& hidden) {
  const bool both = hidden.hasBuiltInColors && hidden.hasBuiltInInkTypes;
  if (!hidden.hasBuiltInColors && !hidden.hasBuiltInInkTypes) return {};
  const Html which = both                      ? Html("Colours and ink types are")
                     : hidden.hasBuiltInColors ? Html("Colours are")
                                               : Html("Ink types are");
  return (which + " those of the built-in table.").In("p class=\"note\"");
}

}  // namespace

Html InkSection(const DefinitionFacts& facts) {
  const Html tag = facts.hidden.hasBuiltInSlots ? BuiltInTag() : Html();
  const Html tables = SlotTable(facts).In("div") + CategoryTable(facts).In("div");
  return Section(Html("Ink slots") + tag, InkRack(facts) + tables.In("div class=\"pair wider\"") +
                                              BuiltInTables(facts.hidden));
}

}  // namespace tavrin::tool
