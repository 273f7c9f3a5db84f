#include "sheet/Elements.h"

#include <algorithm>
#include <cstdint>

#include "definition/TextConversion.h"
#include "definition/ValueConversion.h"
#include "keys/KeyFacts.h"

namespace tavrin::tool {

bool IsGiven(const DefinitionFacts& facts, const std::string& key) {
  using Form = KeyFacts::Form;
  const WatchedRead* read = facts.definition.reading.Find(key);
  if (read == nullptr || !read->found) return false;
  if (read->kind != WatchedRead::Kind::Text) return read->converted;
  const std::string text = NarrowCopy(read->text);
  const Form form = FactsOf(key).form;
  std::int32_t integer = 0;
  double number = 0.0;
  if (form == Form::Integer) return ParseInt(text, &integer);
  if (form == Form::Number) return ParseDouble(text, &number);
  return form != Form::Numbers || std::count(text.begin(), text.end(), ',') >= 2;
}

Html Tag(const Html& style, const Html& text) {
  return Html(" ") + text.In(Html("span class=\"tag ") + style + "\"");
}

Html BuiltInTag() {
  return Tag("built-in", "built-in");
}

Html TagUnlessGiven(const DefinitionFacts& facts, const std::string& key) {
  return IsGiven(facts, key) ? Html() : BuiltInTag();
}

Html Section(const Html& title, const Html& content) {
  return (title.In("h2") + content).In("section");
}

Html FactRow(const Html& name, const Html& value) {
  return (name.In("th scope=\"row\"") + value.In("td")).In("tr");
}

Html FactTable(const Html& rows) {
  return rows.In("tbody").In("table class=\"facts\"");
}

Html Table(const Html& style, const Html& caption, const std::vector<Html>& titles,
           const Html& rows) {
  Html head;
  for (const Html& title : titles)
    head += title.In("th scope=\"col\"");
  return (caption.In("caption") + head.In("tr").In("thead") + rows.In("tbody"))
      .In(Html("table class=\"") + style + "\"");
}

}  // namespace tavrin::tool
