// SPDX-License-Identifier: GPL-3.0-or-later

#include "reports/StrikeOffReport.h"

#include <string>

#include <fmt/format.h>

#include "gait/EventNames.h"
#include "support/NumberForms.h"
#include "support/Text.h"

namespace reports {

using modAllPurpose::OneBasedTable;
using modAllPurpose::PadRightToWidth;
using modAllPurpose::ReportOutput;
using modAllPurposeNumbers::FormatNumber;
using modAllPurposeNumbers::NumberPattern;
using modVantrel::EventRecord;
using modVantrel::FileState;
using modVantrel::GaitEventState;
using modVantrel::SideName;
using modVantrel::StrideRecord;

namespace {

constexpr NumberPattern kTime("00.00000");
constexpr NumberPattern kStrideNumber("00");
constexpr std::int32_t kEventNameWidth = 20;
constexpr std::int32_t kSideNameWidth = 7;

void Counts(const GaitEventState& gait, ReportOutput& output) {
  output.Line(fmt::format("TotalCount:            {}", gait.TotalCount));
  output.Line(fmt::format("SidedStrikeOffCount:   {}", gait.SidedStrikeOffCount));
  output.Line(fmt::format("SidedGeneralCount:     {}", gait.SidedGeneralCount));
  output.Line(fmt::format("NonSidedCount:         {}", gait.NonSidedCount));
  output.Line("");
  output.Line(fmt::format("ValidStrideCount:      {}", gait.ValidStrideCount));
  output.Line("");
}

void EventLines(std::string_view heading, const OneBasedTable<EventRecord>& events,
                ReportOutput& output) {
  output.Line(heading);
  for (const EventRecord& event : events) {
    const std::string name =
        fmt::format("{} {}", SideName(event.Side), modVantrel::EventTypeName(event.Type));
    output.Line(fmt::format("    {}  {}", PadRightToWidth(name, kEventNameWidth),
                            FormatNumber(kTime, double{event.Time})));
  }
  output.Line("");
}

void StrideLine(const StrideRecord& stride, ReportOutput& output) {
  std::string line = "    " + PadRightToWidth(SideName(stride.Side), kSideNameWidth);
  AppendNumber(line, kStrideNumber, stride.Number);
  for (const float time :
       {stride.StartStrikeTime, stride.OppositeFootOffTime, stride.OppositeFootStrikeTime,
        stride.SameFootOffTime, stride.StopStrikeTime}) {
    line += "  ";
    AppendNumber(line, kTime, double{time});
  }
  output.Line(line);
}

}  // namespace

void ShowStrikeOffEvents(const FileState& state, ReportOutput& output) {
  const GaitEventState& gait = state.GaitEvents;
  output.BeginReport();
  Counts(gait, output);
  EventLines("SidedStrikeOffEvents (Side & Type, Time):", gait.SidedStrikeOffEvents, output);
  EventLines("SidedGeneralEvents (Side & Type, Time):", gait.SidedGeneralEvents, output);
  EventLines("NonSidedEvents (Side & Type, Time):", gait.NonSidedEvents, output);
  output.Line(
      "ValidStrides (Side, Number, StartStrikeTime, OppositeFootOffTime, OppositeFootStrikeTime, "
      "SameFootOffTime, StopStrikeTime):");
  for (const StrideRecord& stride : gait.ValidStrides) StrideLine(stride, output);
  output.Line("");
  output.Line("");
}

}  // namespace reports
