#pragma once

#include <cstddef>
#include <ostream>
#include <string>
#include <vector>

namespace tavrin::tool {

/// Lays out what is known of one printer definition: titled sections of labelled values and
/// tables, in ASCII, which every console shows alike.
class Report {
 public:
  using Row = std::vector<std::string>;

  Report(const std::string& file, std::ostream& out);

  void Section(const std::string& title);
  void Value(const std::string& label, const std::string& value);
  /// REQUIRES: every row has as many cells as the header.
  void Table(const Row& header, const std::vector<Row>& rows);

  /// Notes that a section had to leave something out.
  void SetGap(const std::string& reason) { gap_ = reason; }
  /// The last gap noted; empty when the report is complete.
  const std::string& Gap() const { return gap_; }

  const std::string& File() const { return file_; }

 private:
  void TableRow(const Row& row, const std::vector<std::size_t>& widths);

  std::string file_;
  std::ostream& out_;
  std::string gap_;
  bool started_ = false;
};

}  // namespace tavrin::tool
