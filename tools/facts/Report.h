#pragma once

#include <cstddef>
#include <ostream>
#include <string>
#include <vector>

namespace tavrin::tool {

/// Lays out what is known of one printer definition: titled sections of labelled values and
/// tables, in ASCII, which every console shows alike. Control characters in the values come out as
/// '?'.
class Report {
 public:
  using Row = std::vector<std::string>;

  explicit Report(std::ostream& out) : out_(out) {}

  void Section(const std::string& title);
  void Value(const std::string& label, const std::string& value);
  /// REQUIRES: every row has as many cells as the header.
  void Table(const Row& header, std::vector<Row> rows);

 private:
  void TableRow(const Row& row, const std::vector<std::size_t>& widths);

  std::ostream& out_;
  bool started_ = false;
};

}  // namespace tavrin::tool
