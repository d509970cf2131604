// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

namespace app {

// Lines of a report with a tab between columns, for a spreadsheet. What stands two or more blanks
// apart is in two columns; single blanks stay within a value, and so do those of a text in quotes
// at the end of a line. Lines that stand below each other share their columns, so that a value that
// is missing in one leaves its column empty there; eight blanks or more before a line, beyond what
// the others begin with, are an empty column too. The event beside a row of a listing is one value,
// also where its side is followed by two blanks. A line without columns is one value, or two where
// it has a ": ".
QString AsTable(const QString& lines);

}  // namespace app
