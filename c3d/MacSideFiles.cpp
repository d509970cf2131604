// SPDX-License-Identifier: GPL-3.0-or-later

#include "c3d/MacSideFiles.h"

#include <array>
#include <utility>

#include "support/Arithmetic.h"
#include "support/NumberForms.h"
#include "support/RuntimeError.h"
#include "support/Text.h"

namespace modVantrel {

using modAllPurpose::OneBasedTable;
using modAllPurpose::UpperCase;
using modAllPurposeNumbers::LeadingNumber;
using modAllPurposeNumbers::ToSingle;

namespace {

constexpr std::int32_t kMostColumns = 500;
constexpr std::int32_t kFieldsBehindLastColumn = 12;
constexpr std::int32_t kMostFramesOfACode = 20;
constexpr std::size_t kCodeLength = 5;  // three letters in quotation marks

void ReadColumnHeadings(MacDataFile& data) {
  ReadNextDataLine(data);
  for (std::int32_t column = 1; column <= kMostColumns; ++column) {
    std::string name = NextTabField(data);
    if (!name.empty()) data.Columns.Append({std::move(name), column});
  }
}

void ReadSecondRow(MacDataFile& data) {
  ReadNextDataLine(data);
  if (data.Columns.IsEmpty()) return;
  const std::int32_t lastColumn = data.Columns[data.Columns.Count()].Column;
  for (std::int32_t field = 1; field <= lastColumn + kFieldsBehindLastColumn; ++field) {
    data.SecondRow.Append(NextTabField(data));
  }
}

void FindFirstFrameLine(MacDataFile& data) {
  while (true) {
    ReadNextDataLine(data);
    if (data.SideFileNumber.AtEnd()) return;
    if (LeadingNumber(NextTabField(data)) == 1.0) {
      data.FirstFrameLine = data.LineCount;
      return;
    }
  }
}

}  // namespace

SideFileSpecs SideFilesOf(const std::string& trial) {
  const std::string stem(modAllPurpose::WithoutExtension(trial));
  return {stem + ".evt", stem + ".data"};
}

void RewindDataFile(MacDataFile& data) {
  data.SideFileNumber.Rewind();
  data.LineCount = 0;
  data.CurrentLine.clear();
}

void ReadNextDataLine(MacDataFile& data) {
  data.CurrentLine = data.SideFileNumber.Next();
  ++data.LineCount;
}

std::string NextTabField(MacDataFile& data) {
  const auto tab = data.CurrentLine.find('\t');
  if (tab == std::string::npos) return std::exchange(data.CurrentLine, {});
  std::string field = data.CurrentLine.substr(0, tab);
  data.CurrentLine.erase(0, tab + 1);
  return field;
}

void ReadMacDataFile(MacDataFile& data) {
  data.Columns = {};
  data.SecondRow = {};
  data.FirstFrameLine = 0;
  RewindDataFile(data);
  while (!data.SideFileNumber.AtEnd()) {
    if (data.CurrentLine == "[Data]") {
      ReadColumnHeadings(data);
      ReadSecondRow(data);
      FindFirstFrameLine(data);
      return;
    }
    ReadNextDataLine(data);
  }
}

MacEventLines ReadMacEventLines(const FileState& state) {
  MacEventLines lines;
  const std::array<std::pair<std::string_view, std::string*>, 4> codes = {
      {{"\"RTO\"", &lines.RightToeOff},
       {"\"RHS\"", &lines.RightHeelStrike},
       {"\"LTO\"", &lines.LeftToeOff},
       {"\"LHS\"", &lines.LeftHeelStrike}}};
  TextLines file;
  file.Open(state.EvtFileSpec);
  while (!file.AtEnd()) {
    std::string line = UpperCase(file.Next());
    modAllPurpose::TrimInPlace(line);
    for (const auto& [code, kept] : codes) {
      if (std::string_view(line).substr(0, kCodeLength) == code) *kept = line;
    }
  }
  return lines;
}

OneBasedTable<std::int32_t> ParseFrameList(std::string_view line) {
  OneBasedTable<std::int32_t> frames;
  std::string rest = std::string(line) + ' ';
  while (true) {
    rest.erase(0, rest.find(' ') + 1);
    if (rest.empty()) return frames;
    if (frames.Count() == kMostFramesOfACode) {
      throw modAllPurpose::RuntimeError(modAllPurpose::ErrorNumber::SubscriptOutOfRange);
    }
    const double storedFrame = LeadingNumber(std::string_view(rest).substr(0, rest.find(' ')));
    frames.Append(modAllPurposeNumbers::RoundToLong(storedFrame + 1.0));
  }
}

float FrameToTime(const FileState& state, std::int32_t frame) {
  return ClampToWalk(state, ToSingle(double{state.TimeBetweenFrames} * (frame - 1.0)));
}

}  // namespace modVantrel
