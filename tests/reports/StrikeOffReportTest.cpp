// SPDX-License-Identifier: GPL-3.0-or-later

#include <string>

#include <gtest/gtest.h>

#include "gait/EventNames.h"
#include "reports/StrikeOffReport.h"
#include "tests/GaitTrials.h"

namespace {

using namespace modVantrel;
using reports::ShowStrikeOffEvents;
using tests::StateWithEvents;

std::string EventsReport(const FileState& state) {
  return tests::TextOf([&](auto& output) { ShowStrikeOffEvents(state, output); });
}

// The report's line that holds `part`.
std::string LineWith(const std::string& report, const std::string& part) {
  for (const std::string& line : tests::LinesOf(report)) {
    if (line.find(part) != std::string::npos) return line;
  }
  return "no line with " + part;
}

TEST(SideName, IsNoneForAnyOtherCode) {
  EXPECT_EQ(SideName(GaitSide::Left), "Left");
  EXPECT_EQ(SideName(GaitSide::Right), "Right");
  for (const std::int32_t side : {0, 3, -1})
    EXPECT_EQ(SideName(static_cast<GaitSide>(side)), "None");
}

TEST(EventTypeName, IsOtherForAnyOtherCode) {
  EXPECT_EQ(EventTypeName(GaitEventType::FootStrike), "Foot Strike");
  EXPECT_EQ(EventTypeName(GaitEventType::FootOff), "Foot Off");
  for (const std::int32_t type : {0, 3, -1})
    EXPECT_EQ(EventTypeName(static_cast<GaitEventType>(type)), "Other");
}

TEST(StrikeOffReport, TrialWithoutEventsPrintsZerosAndHeadings) {
  EXPECT_EQ(EventsReport(FileState()),
            "TotalCount:            0\n"
            "SidedStrikeOffCount:   0\n"
            "SidedGeneralCount:     0\n"
            "NonSidedCount:         0\n"
            "\n"
            "ValidStrideCount:      0\n"
            "\n"
            "SidedStrikeOffEvents (Side & Type, Time):\n"
            "\n"
            "SidedGeneralEvents (Side & Type, Time):\n"
            "\n"
            "NonSidedEvents (Side & Type, Time):\n"
            "\n"
            "ValidStrides (Side, Number, StartStrikeTime, OppositeFootOffTime, "
            "OppositeFootStrikeTime, SameFootOffTime, StopStrikeTime):\n"
            "\n"
            "\n");
}

TEST(StrikeOffReport, PrintsCountsListsAndStrides) {
  FileState state = StateWithEvents({{GaitSide::Left, GaitEventType::FootStrike, 1.1F}});
  state.GaitEvents.TotalCount = 4;
  state.GaitEvents.SidedGeneralCount = 1;
  state.GaitEvents.SidedGeneralEvents.Append({GaitSide::Right, GaitEventType::Other, 2});
  state.GaitEvents.NonSidedCount = 2;
  state.GaitEvents.NonSidedEvents.Append({GaitSide::None, GaitEventType::Other, 12.345F});
  state.GaitEvents.NonSidedEvents.Append({GaitSide::None, GaitEventType::FootOff, 3});
  state.GaitEvents.ValidStrideCount = 1;
  state.GaitEvents.ValidStrides.Append({GaitSide::Left, 1, 1.0F, 1.1F, 1.5F, 1.6F, 2.0F});
  EXPECT_EQ(EventsReport(state),
            "TotalCount:            4\n"
            "SidedStrikeOffCount:   1\n"
            "SidedGeneralCount:     1\n"
            "NonSidedCount:         2\n"
            "\n"
            "ValidStrideCount:      1\n"
            "\n"
            "SidedStrikeOffEvents (Side & Type, Time):\n"
            "    Left Foot Strike      01.10000\n"
            "\n"
            "SidedGeneralEvents (Side & Type, Time):\n"
            "    Right Other           02.00000\n"
            "\n"
            "NonSidedEvents (Side & Type, Time):\n"
            "    None Other            12.34500\n"
            "    None Foot Off         03.00000\n"
            "\n"
            "ValidStrides (Side, Number, StartStrikeTime, OppositeFootOffTime, "
            "OppositeFootStrikeTime, SameFootOffTime, StopStrikeTime):\n"
            "    Left   01  01.00000  01.10000  01.50000  01.60000  02.00000\n"
            "\n"
            "\n");
}

TEST(StrikeOffReport, NegativeTotalCountPrintsAsItIs) {
  FileState state;
  state.GaitEvents.TotalCount = -3;
  EXPECT_EQ(LineWith(EventsReport(state), "TotalCount"), "TotalCount:            -3");
}

TEST(StrikeOffReport, TimesRoundAndGrow) {
  const FileState state = StateWithEvents({{GaitSide::Left, GaitEventType::FootStrike, 0.000004F},
                                           {GaitSide::Right, GaitEventType::FootStrike, 9.999996F},
                                           {GaitSide::Right, GaitEventType::FootOff, 123.456F}});
  const std::string report = EventsReport(state);
  EXPECT_EQ(LineWith(report, "Left Foot Strike"), "    Left Foot Strike      00.00000");
  EXPECT_EQ(LineWith(report, "Right Foot Strike"), "    Right Foot Strike     10.00000");
  EXPECT_EQ(LineWith(report, "Right Foot Off"), "    Right Foot Off        123.45600");
}

TEST(StrikeOffReport, StrideNumberOfThreeDigitsMakesTheLineLonger) {
  FileState state;
  state.GaitEvents.ValidStrideCount = 2;
  state.GaitEvents.ValidStrides.Append({GaitSide::Right, 123, 1, 1, 1, 1, 1});
  state.GaitEvents.ValidStrides.Append({GaitSide::None, 9, 1, 1, 1, 1, 1});
  const std::string report = EventsReport(state);
  EXPECT_EQ(LineWith(report, "    Right"),
            "    Right  123  01.00000  01.00000  01.00000  01.00000  01.00000");
  EXPECT_EQ(LineWith(report, "    None"),
            "    None   09  01.00000  01.00000  01.00000  01.00000  01.00000");
}

}  // namespace
