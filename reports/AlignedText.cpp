// SPDX-License-Identifier: GPL-3.0-or-later

#include "reports/AlignedText.h"

#include <algorithm>
#include <cstddef>
#include <string_view>
#include <utility>

#include "gait/CheckText.h"

namespace reports {

namespace {

std::size_t Characters(std::string_view text) {
  return static_cast<std::size_t>(std::ranges::count_if(
      text, [](char byte) { return (static_cast<unsigned char>(byte) & 0xC0U) != 0x80U; }));
}

std::string Line(const std::vector<std::string>& cells,
                 const std::vector<AlignedText::Column>& columns,
                 const std::vector<std::size_t>& widths) {
  std::string line;
  for (std::size_t i = 0; i < cells.size(); ++i) {
    const std::string blanks(widths[i] - Characters(cells[i]), ' ');
    line += i == 0 ? "" : "  ";
    line += columns[i].Side == Align::Left ? cells[i] + blanks : blanks + cells[i];
  }
  line.erase(line.find_last_not_of(' ') + 1);
  return line;
}

}  // namespace

void AlignedText::AddRow(std::vector<std::string> cells) {
  for (std::string& cell : cells) cell = modVantrel::Shown(cell);
  rows_.push_back(std::move(cells));
}

void AlignedText::Print(modAllPurpose::ReportOutput& output) const {
  std::vector<std::string> headings;
  for (const Column& column : columns_) headings.push_back(column.Heading);
  std::vector<std::size_t> widths(columns_.size());
  const auto widen = [&widths](const std::vector<std::string>& cells) {
    for (std::size_t i = 0; i < cells.size(); ++i) {
      widths[i] = std::max(widths[i], Characters(cells[i]));
    }
  };
  widen(headings);
  std::ranges::for_each(rows_, widen);
  const std::string heading = Line(headings, columns_, widths);
  if (!heading.empty()) output.Line(heading);
  for (const auto& row : rows_) output.Line(Line(row, columns_, widths));
}

}  // namespace reports
