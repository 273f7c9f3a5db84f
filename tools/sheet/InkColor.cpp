#include "sheet/InkColor.h"

#include <algorithm>
#include <cctype>

namespace tavrin::tool {

namespace {

struct NamedColor {
  const char* name;
  Html fill;
};

constexpr char kClear[] = "clear";
constexpr char kSupport[] = "support";

/// Longer names before those that they end in.
const NamedColor* FindColor(const std::string& words) {
  static const NamedColor kColors[] = {{"light cyan", "#8fd8f0"},
                                       {"light magenta", "#f29ac4"},
                                       {"light yellow", "#fff59a"},
                                       {"light black", "#8a8d90"},
                                       {"light gray", "#c9ccd0"},
                                       {"light grey", "#c9ccd0"},
                                       {"light green", "#a5d99c"},
                                       {"light blue", "#9fc4ee"},
                                       {"light red", "#f29b94"},
                                       {"light orange", "#fbc48a"},
                                       {"dark gray", "#55595e"},
                                       {"dark grey", "#55595e"},
                                       {"dark green", "#14602f"},
                                       {"dark blue", "#16327d"},
                                       {"dark red", "#8c1a1a"},
                                       {"cyan", "#00a0dc"},
                                       {"magenta", "#dc0a7b"},
                                       {"yellow", "#ffe000"},
                                       {"black", "#17181a"},
                                       {"white", "#ffffff"},
                                       {"gray", "#8f9397"},
                                       {"grey", "#8f9397"},
                                       {"red", "#d8261c"},
                                       {"green", "#1f9d4d"},
                                       {"blue", "#1f4fbf"},
                                       {"orange", "#f5821f"},
                                       {"violet", "#6a3fa0"},
                                       {"purple", "#7d2f8f"},
                                       {"pink", "#f48fb1"},
                                       {"brown", "#7b4a2b"},
                                       {"beige", "#e3d3b0"},
                                       {"skin", "#e6b89c"},
                                       {"gold", "#c9a227"},
                                       {"silver", "#b9bec4"},
                                       {"transparent", ""},
                                       {kClear, ""},
                                       {"varnish", ""},
                                       {"gloss", ""},
                                       {kSupport, ""},
                                       {"wax", ""}};
  const NamedColor* best = nullptr;
  std::size_t bestEnd = 0;
  for (const NamedColor& color : kColors) {
    const std::string word = std::string(" ") + color.name + ' ';
    const std::size_t at = words.rfind(word);
    if (at == std::string::npos || at + word.size() <= bestEnd) continue;
    best = &color;
    bestEnd = at + word.size();
  }
  return best;
}

/// In small letters, a blank on both sides of every word.
std::string WordsOf(const std::string& name) {
  std::string words = " ";
  for (const char c : name) {
    const auto byte = static_cast<unsigned char>(c);
    words += byte < 0x80 && std::isalpha(byte) == 0 ? ' ' : static_cast<char>(std::tolower(byte));
  }
  return words + ' ';
}

Html Pattern(const std::string& name) {
  if (name == kSupport || name == "wax") {
    return "<rect class=\"support\" width=\"24\" height=\"24\"></rect>"
           "<path class=\"weave\" d=\"M0 8L8 0M0 16L16 0M0 24L24 0M8 24L24 8M16 24L24 16\"></path>";
  }
  return "<rect class=\"clear\" width=\"24\" height=\"24\"></rect>"
         "<path class=\"shine\" d=\"M3 15L15 3M5 20L20 5M14 20L20 14\"></path>";
}

}  // namespace

Html Swatch(const std::string& name, bool isKnown) {
  const NamedColor* color = isKnown ? FindColor(WordsOf(name)) : nullptr;
  Html drawing;
  if (color == nullptr) {
    drawing =
        "<rect class=\"clear\" width=\"24\" height=\"24\"></rect>"
        "<text class=\"what\" x=\"12\" y=\"15.5\">?</text>";
  } else if (color->fill.IsEmpty()) {
    drawing = Pattern(color->name);
  } else {
    drawing = Html().In(Html("rect width=\"24\" height=\"24\" fill=\"") + color->fill + "\"");
  }
  const Html title = isKnown ? Html::Text(name) : Html("unknown ink");
  return (title.In("title") + drawing)
      .In("svg class=\"swatch\" viewBox=\"0 0 24 24\" preserveAspectRatio=\"xMidYMid slice\" "
          "role=\"img\"");
}

}  // namespace tavrin::tool
