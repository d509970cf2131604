// SPDX-License-Identifier: GPL-3.0-or-later

#include "reports/HeaderReport.h"

#include <cstdint>
#include <iterator>
#include <string>
#include <variant>
#include <vector>

#include <fmt/format.h>

#include "c3d/ParameterSection.h"
#include "reports/HeaderFields.h"
#include "support/NumberForms.h"
#include "support/Text.h"

namespace reports {

using modAllPurpose::ReportOutput;
using modAllPurposeNumbers::FormatNumber;
using modAllPurposeNumbers::GeneralForm;
using modAllPurposeNumbers::NumberPattern;
using modVantrel::C3dHeader;
using modVantrel::FileState;

namespace {

constexpr NumberPattern kEventNumber("00");
constexpr NumberPattern kEventTime("###0.0000");
constexpr NumberPattern kFrameTime("0.0#########");

// A name, padded to the column of the values, and its value.
void Field(ReportOutput& output, const HeaderField& field, const std::string& value) {
  output.Line(fmt::format("{:<35}{}", fmt::format("{}{}:", field.Name, field.Remark), value));
}

void Field(ReportOutput& output, const HeaderField& field) {
  if (const auto* number = std::get_if<float>(&field.Value)) {
    Field(output, field, GeneralForm(*number));
  } else {
    Field(output, field, std::to_string(std::get<std::int32_t>(field.Value)));
  }
}

void StoredFields(const C3dHeader& header, ReportOutput& output) {
  for (const HeaderField& field : StoredHeaderFields(header)) Field(output, field);
}

void HeaderEvents(const C3dHeader& header, ReportOutput& output) {
  output.Line(
      "(The following event information is the old style information, and not necessarily the PIG "
      "information.)");
  Field(output, HeaderEventCount(header));
  output.Line("Event numbers, times, display switches, and labels");
  for (std::int32_t i = 1; i <= header.TimedEventsCount; ++i) {
    output.Line(fmt::format("  {}  {}  {}  '{}'", FormatNumber(kEventNumber, i),
                            FormatNumber(kEventTime, double{header.EventTimes[i]}),
                            header.EventDisplaySwitches[i],
                            modAllPurpose::Trimmed(header.EventLabels[i])));
  }
}

void ReservedAreas(const C3dHeader& header, ReportOutput& output) {
  output.Line("Reserved1: " + HexDump(header.Reserved1));
  output.Line("Reserved2: " + HexDump(header.Reserved2));
  output.Line("Reserved3: " + HexDump(header.Reserved3));
  output.Line("Reserved4: " + HexDump(header.Reserved4));
}

void DerivedFields(const FileState& state, ReportOutput& output) {
  output.Line("  --Extra calculated stuff--");
  std::vector<HeaderField> fields = DerivedHeaderFields(state);
  const HeaderField timeBetweenFrames = fields.back();
  fields.pop_back();
  for (const HeaderField& field : fields) Field(output, field);
  Field(output, timeBetweenFrames, FormatNumber(kFrameTime, double{state.TimeBetweenFrames}));
}

}  // namespace

std::string HexDump(std::span<const std::byte> bytes) {
  std::string dump;
  for (const std::byte byte : bytes) {
    fmt::format_to(std::back_inserter(dump), " {:X}", std::to_integer<unsigned>(byte));
  }
  return dump;
}

void ShowHeaderInfo(const FileState& state, ReportOutput& output) {
  output.BeginReport();
  output.Line("OpenC3dFileSpec: " + state.OpenC3dFileSpec);
  output.Line("");
  StoredFields(state.Header, output);
  HeaderEvents(state.Header, output);
  ReservedAreas(state.Header, output);
  output.Line("");
  DerivedFields(state, output);
  output.Line("");
}

void ShowParameterHeader(const FileState& state, ReportOutput& output) {
  const modVantrel::ParamBlockHeader header = modVantrel::ReadParamBlockHeader(state);
  output.BeginReport();
  output.Line(fmt::format("ParamBlockPointer:  {}", header.ParamBlockPointer));
  output.Line(fmt::format("RecordID:           {}", header.RecordID));
  output.Line(fmt::format("ParamBlockCount:    {}", header.ParamBlockCount));
  output.Line(fmt::format("ProcessorType:      {}", header.ProcessorType));
}

}  // namespace reports
