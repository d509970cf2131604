// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

#include "c3d/FileState.h"
#include "support/OneBasedTable.h"

// The two text files that the MAC motion system writes beside a C3D file: ".evt" with the frames of
// toe offs and heel strikes, ".data" with a table of tab-separated columns. They are read only in a
// build for that system.
namespace modVantrel {

struct SideFileSpecs {
  std::string Evt;
  std::string Data;
};

// The paths of the side files: the trial's path with its last four characters replaced.
SideFileSpecs SideFilesOf(const std::string& trial);

// The three helpers of the data file: back to its start, the next line into the current line, and
// the text of the current line up to its next tab, which is taken off it.
void RewindDataFile(MacDataFile& data);
void ReadNextDataLine(MacDataFile& data);
std::string NextTabField(MacDataFile& data);

// Reads the column headings behind the line "[Data]", the row behind them and the line number of
// the first row whose first field is 1. Without such a line the column list is empty.
void ReadMacDataFile(MacDataFile& data);

// The last line of each code in the event file, upper-cased and trimmed; empty where it has none.
struct MacEventLines {
  std::string RightToeOff;
  std::string RightHeelStrike;
  std::string LeftToeOff;
  std::string LeftHeelStrike;
};

// Errors as opening and reading a file.
MacEventLines ReadMacEventLines(const FileState& state);

// The frame numbers, counted from 1, behind the code of a line of the event file, where they are
// counted from 0. Two blanks in a row give a frame 1. Error 9 for more than 20.
modAllPurpose::OneBasedTable<std::int32_t> ParseFrameList(std::string_view line);

// The time of a frame, counted from 1, moved into the capture; seconds.
float FrameToTime(const FileState& state, std::int32_t frame);

}  // namespace modVantrel
