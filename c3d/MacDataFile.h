// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstdint>
#include <string>

#include "c3d/TextLines.h"
#include "support/OneBasedTable.h"

namespace modVantrel {

struct MacDataColumn {
  std::string Name;
  std::int32_t Column = 0;  // place among the tab-separated fields, from 1, empty headings counted
};

// The data file that the MAC motion system writes beside a C3D file, and what was read from it.
struct MacDataFile {
  TextLines SideFileNumber;
  std::string CurrentLine;     // what is left of the line last read
  std::int32_t LineCount = 0;  // lines read since the last rewind
  modAllPurpose::OneBasedTable<MacDataColumn> Columns;
  modAllPurpose::OneBasedTable<std::string> SecondRow;
  std::int32_t FirstFrameLine = 0;  // line number of the row of frame 1; 0 = none
};

}  // namespace modVantrel
