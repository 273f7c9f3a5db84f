#pragma once

#include <cstddef>
#include <cstdint>
#include <string>

namespace tavrin::tool {

/// Markup. What stands in the program's own text as a literal is markup already; every other text
/// becomes some only by being escaped.
class Html {
 public:
  Html() = default;
  template <std::size_t N>
  Html(const char (&markup)[N]) : markup_(markup) {}

  /// The text, in the process's code page, as a person can look at it: its control characters and
  /// what is no character come out as escapes like \x1B.
  static Html Text(const std::string& text);
  static Html Number(std::int64_t number);

  bool IsEmpty() const { return markup_.empty(); }
  /// The element that holds this. tag is its name with its attributes.
  Html In(const Html& tag) const;
  Html& operator+=(const Html& other);

  /// All in ASCII, so that no change of the encoding on the way does it any harm.
  std::string Ascii() const;

 private:
  std::string markup_;
};

Html operator+(Html a, const Html& b);

/// A number to at most so many decimal places, without needless zeros.
Html Decimal(double number, int places = 2);

/// A length in mm with its unit.
Html Millimetres(std::int64_t micrometres);

}  // namespace tavrin::tool
