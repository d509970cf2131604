// SPDX-License-Identifier: GPL-3.0-or-later

#include "app/TableCopy.h"

#include <algorithm>
#include <limits>
#include <string>
#include <vector>

#include <QStringList>

namespace app {

namespace {

constexpr int kGap = 2;          // blanks between columns
constexpr int kEmptyColumn = 8;  // blanks before a line that are one

// Where values stand in a line or in some lines below each other: '.' for a blank in all of them.
using Mask = std::string;

struct Span {
  std::size_t Start = 0;
  std::size_t End = 0;
};

// A text in quotes that ends the line begins here, else the end.
qsizetype StartOfQuoted(const QString& line) {
  if (!line.endsWith(u'\'')) return line.size();
  const qsizetype start = line.indexOf(QStringLiteral(" '"));
  return start < 0 ? line.size() : start + 1;
}

// The event beside a row of a listing has its side as wide as the longer one: "Left  Foot Strike".
bool BeginsWithLeftEvent(const QString& line) {
  const QString left = QStringLiteral("Left  ");
  return line.startsWith(left) && line.size() > left.size() && line.at(left.size()).isLetter();
}

Mask MaskOf(const QString& line) {
  Mask mask(static_cast<std::size_t>(line.size()), '.');
  const qsizetype quoted = StartOfQuoted(line);
  for (qsizetype i = 0; i < line.size(); ++i) {
    if (i >= quoted || line.at(i) != u' ') mask[static_cast<std::size_t>(i)] = 'x';
  }
  constexpr std::size_t kLeft = 4;
  if (BeginsWithLeftEvent(line)) mask.replace(kLeft, kGap, kGap, 'x');
  return mask;
}

Mask Both(Mask one, const Mask& other) {
  if (one.size() < other.size()) one.resize(other.size(), '.');
  for (std::size_t i = 0; i < other.size(); ++i) {
    if (other[i] == 'x') one[i] = 'x';
  }
  return one;
}

// The columns of a mask: what is not parted by a gap.
std::vector<Span> ColumnsOf(const Mask& mask) {
  std::vector<Span> columns;
  for (std::size_t i = 0; i < mask.size(); ++i) {
    if (mask[i] == '.') continue;
    if (columns.empty() || i - columns.back().End >= kGap) columns.push_back({i, i});
    columns.back().End = i + 1;
  }
  return columns;
}

std::size_t IndentOf(const Mask& mask) { return std::min(mask.find('x'), mask.size()); }

// Lines below each other that share their columns.
struct Block {
  std::vector<QString> Lines;
  Mask Shared;
};

QString Cell(const QString& line, const Span& column) {
  return line
      .mid(static_cast<qsizetype>(column.Start), static_cast<qsizetype>(column.End - column.Start))
      .trimmed();
}

void AddRows(const Block& block, std::size_t usualIndent, QStringList& rows) {
  const std::vector<Span> columns = ColumnsOf(block.Shared);
  const bool beginsEmpty = IndentOf(block.Shared) >= usualIndent + kEmptyColumn;
  for (const QString& line : block.Lines) {
    QStringList cells;
    if (beginsEmpty) cells << QString();
    for (const Span& column : columns) cells << Cell(line, column);
    while (!cells.isEmpty() && cells.last().isEmpty()) cells.removeLast();
    rows << cells.join(u'\t');
  }
}

// A line without columns.
QString OneValue(const QString& line) {
  const qsizetype colon = line.indexOf(QStringLiteral(": "));
  if (colon < 0) return line.trimmed();
  return line.left(colon + 1).trimmed() + u'\t' + line.mid(colon + 2).trimmed();
}

// Whether each column of `one` lies in a column of `all` by itself.
bool StayApart(const std::vector<Span>& one, const std::vector<Span>& all) {
  std::size_t next = 0;
  for (const Span& column : all) {
    if (next < one.size() && one[next].Start < column.End) ++next;
    if (next < one.size() && one[next].Start < column.End) return false;
  }
  return true;
}

// Whether the line goes below those of the block: no column of either runs into another one.
bool Joins(const Block& block, const Mask& mask) {
  const std::vector<Span> all = ColumnsOf(Both(block.Shared, mask));
  return StayApart(ColumnsOf(block.Shared), all) && StayApart(ColumnsOf(mask), all);
}

// The least indent of the lines of several columns.
std::size_t UsualIndent(const QStringList& lines) {
  std::size_t least = std::numeric_limits<std::size_t>::max() - kEmptyColumn;
  for (const QString& line : lines) {
    const Mask mask = MaskOf(line);
    if (ColumnsOf(mask).size() > 1) least = std::min(least, IndentOf(mask));
  }
  return least;
}

class Table {
 public:
  explicit Table(const QStringList& lines) : usualIndent_(UsualIndent(lines)) {
    for (const QString& line : lines) Add(line);
    EndBlock();
  }

  QString Text() const { return rows_.join(u'\n'); }

 private:
  void Add(const QString& line) {
    const Mask mask = MaskOf(line);
    if (ColumnsOf(mask).size() < 2) {
      EndBlock();
      rows_ << OneValue(line);
      return;
    }
    if (!Joins(block_, mask)) EndBlock();
    block_.Lines.push_back(line);
    block_.Shared = Both(std::move(block_.Shared), mask);
  }

  void EndBlock() {
    AddRows(block_, usualIndent_, rows_);
    block_ = {};
  }

  std::size_t usualIndent_;
  Block block_;
  QStringList rows_;
};

}  // namespace

QString AsTable(const QString& lines) {
  QString text = lines;
  text.replace(u'\t', u' ').remove(u'\r');
  return Table(text.split(u'\n')).Text();
}

}  // namespace app
