#include "facts/Report.h"

#include <algorithm>
#include <iomanip>

#include "files/TextForms.h"

namespace tavrin::tool {

namespace {

constexpr int kLabelWidth = 30;

}  // namespace

void Report::Section(const std::string& title) {
  if (started_) out_ << '\n';
  started_ = true;
  out_ << title << '\n';
}

void Report::Value(const std::string& label, const std::string& value) {
  out_ << "  " << std::left << std::setw(kLabelWidth) << label << Printable(value) << '\n';
}

void Report::Table(const Row& header, std::vector<Row> rows) {
  std::vector<std::size_t> widths;
  for (const std::string& cell : header)
    widths.push_back(cell.size());
  for (Row& row : rows) {
    for (std::size_t i = 0; i < row.size(); ++i) {
      row[i] = Printable(row[i]);
      widths[i] = std::max(widths[i], row[i].size());
    }
  }
  TableRow(header, widths);
  for (const Row& row : rows)
    TableRow(row, widths);
}

void Report::TableRow(const Row& row, const std::vector<std::size_t>& widths) {
  for (std::size_t i = 0; i < row.size(); ++i) {
    out_ << "  " << std::right << std::setw(static_cast<int>(widths[i])) << row[i];
  }
  out_ << '\n';
}

}  // namespace tavrin::tool
