// SPDX-License-Identifier: GPL-3.0-or-later

#include <cstdint>
#include <filesystem>
#include <functional>
#include <memory>
#include <span>
#include <string>
#include <vector>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "gait/EventExtraction.h"
#include "reports/CsvTable.h"
#include "reports/NormsReport.h"
#include "reports/PooledNumbers.h"
#include "reports/ScoresReport.h"
#include "reports/SummaryReport.h"
#include "reports/TableColumns.h"
#include "reports/VariabilityReport.h"
#include "reports/VisitReport.h"
#include "tests/visit/VisitWalks.h"
#include "visit/NormalFile.h"

namespace {

using reports::Complaints;
using reports::PooledReport;
using reports::TableOptions;
using testing::ElementsAre;
using testing::IsEmpty;
using tests::Moving;
using tests::Opened;
using tests::OpenedWalk;
using tests::Standing;
using tests::TrialOfOneStride;

TableOptions Asking(std::vector<std::string> labels) {
  TableOptions options;
  options.Labels = std::move(labels);
  return options;
}

std::string CsvOf(std::span<const std::string_view> columns,
                  const std::function<void(reports::TableOutput&)>& rows) {
  modAllPurpose::TextReport text;
  reports::CsvTable table(text);
  table.Begin(columns);
  rows(table);
  table.End();
  return text.Text();
}

std::string CsvOf(std::span<const std::string_view> columns, const PooledReport& report) {
  return CsvOf(columns, [&report](reports::TableOutput& table) { report.WriteRows(table); });
}

std::string TextOf(const PooledReport& report) {
  return tests::TextOf([&report](modAllPurpose::ReportOutput& output) { report.ShowText(output); });
}

Complaints AddTo(PooledReport& report, const sample::TrialBuilder& builder) {
  OpenedWalk walk = Opened(builder);
  report.Add(walk.State());
  return report.Missing(walk.State());
}

// A left stride of 1.2 m, 0.78125 s, whose knee stands at `knee`.
sample::TrialBuilder Walk(float knee = 30, const std::string& side = "Left") {
  const std::string own = side.substr(0, 1);
  const std::string opposite = side == "Left" ? "R" : "L";
  sample::TrialBuilder builder = TrialOfOneStride(side);
  builder.AddPoint(own + "TOE", Moving({0, 0, 0}, {24, 0, 0}))
      .AddPoint(opposite + "TOE", Standing(17 * 24 + 900, 120, 0))
      .AddPoint(own + "KneeAngles", Standing(knee, 2, 3))
      .SetParam("POINT", sample::TextParam("UNITS", "mm"))
      .SetParam("POINT", sample::TextListParam("ANGLES", {own + "KneeAngles"}))
      .SetParam("POINT", sample::TextParam("ANGLE_UNITS", "deg"));
  return builder;
}

// The first stride begins before the trial.
sample::TrialBuilder IncompleteWalk() {
  sample::TrialBuilder builder;
  builder.StoredAs(sample::Storage::Single).Frames(1, 81).Rate(64);
  tests::AddStrideEvents(builder, "Left", {-1, 21.0F / 64, 41.0F / 64, 46.0F / 64, 66.0F / 64});
  return builder.AddPoint("LKneeAngles", Standing(1000, 0, 0));
}

TEST(SummaryReport, HasARowForEachMeasure) {
  OpenedWalk walk = Opened(Walk());
  const std::string csv = CsvOf(reports::columns::kSummary, [&](reports::TableOutput& table) {
    reports::SummaryRows(walk.State(), "a.c3d", table);
  });
  const auto lines = tests::LinesOf(csv);
  ASSERT_EQ(lines.size(), 13U);
  EXPECT_EQ(lines[0],
            "file,measure,unit,left_mean,left_sd,left_n,right_mean,right_sd,right_n,asymmetry");
  EXPECT_EQ(lines[2], "a.c3d,cadence,steps/min,153.6,,1,,,0,");
  EXPECT_EQ(lines[12], "a.c3d,double_support,%,20,,1,,,0,");
}

TEST(SummaryReport, TrialWithoutCompleteStridesHasAllRowsWithoutNumbers) {
  for (const auto& builder : {sample::TrialBuilder(), IncompleteWalk()}) {
    OpenedWalk walk = Opened(builder);
    const std::string csv = CsvOf(reports::columns::kSummary, [&](reports::TableOutput& table) {
      reports::SummaryRows(walk.State(), "a.c3d", table);
    });
    const auto lines = tests::LinesOf(csv);
    ASSERT_EQ(lines.size(), 13U);
    EXPECT_EQ(lines[1], "a.c3d,walking_speed,m/s,,,0,,,0,");
  }
}

TEST(SummaryReport, TextIsATableForAPerson) {
  OpenedWalk walk = Opened(Walk());
  const auto lines = tests::LinesOf(tests::TextOf([&walk](modAllPurpose::ReportOutput& output) {
    reports::ShowSummary(walk.State(), output);
  }));
  ASSERT_EQ(lines.size(), 13U);
  EXPECT_EQ(lines[0], "Measure                Unit            Left  Right  Asymmetry (%)");
  EXPECT_EQ(lines[1], "Walking speed          m/s         1.54 (1)      -              -");
  EXPECT_EQ(lines[2], "Cadence                steps/min  153.6 (1)      -              -");
}

TEST(PooledNumbers, NumberThatRoundsToZeroHasNoSign) {
  EXPECT_EQ(reports::NumberText(-0.04, 1), "0.0");
  EXPECT_EQ(reports::NumberText(-0.0, 2), "0.00");
  EXPECT_EQ(reports::NumberText(-0.06, 1), "-0.1");
}

TEST(VisitReport, PoolsTheStridesOfAllTrials) {
  const auto report = reports::MakeVisitReport({});
  EXPECT_THAT(AddTo(*report, Walk()), IsEmpty());
  EXPECT_THAT(AddTo(*report, Walk()), IsEmpty());
  EXPECT_THAT(AddTo(*report, Walk(30, "Right")), IsEmpty());
  EXPECT_THAT(AddTo(*report, IncompleteWalk()), IsEmpty());
  const auto lines = tests::LinesOf(CsvOf(reports::columns::kVisit, *report));
  ASSERT_EQ(lines.size(), 13U);
  EXPECT_EQ(lines[0],
            "measure,unit,left_mean,left_sd,left_n,right_mean,right_sd,right_n,asymmetry");
  EXPECT_EQ(lines[3], "stride_time,s,0.78125,0,2,0.78125,,1,0");
  EXPECT_THAT(TextOf(*report), testing::HasSubstr("0.78 ± 0.00 (2)"));
}

TEST(VisitReport, WithoutATrialHasAllRows) {
  const auto report = reports::MakeVisitReport({});
  EXPECT_EQ(tests::LinesOf(CsvOf(reports::columns::kVisit, *report)).size(), 13U);
}

// Adds a trial whose frames end before the last one, which `report` must answer with an error and
// forget.
void AddACutTrialTo(PooledReport& report) {
  sample::Trial trial = Walk(1000).Build();
  OpenedWalk walk(trial, modVantrel::FindGaitEvents);
  ASSERT_EQ(walk.Result(), modVantrel::OpenResult::Success);
  std::filesystem::resize_file(walk.File(), std::filesystem::file_size(walk.File()) - 100);
  EXPECT_EQ(tests::ErrorNumberOf([&] { report.Add(walk.State()); }), tests::kInputPastEndOfFile);
}

TEST(PooledReports, TrialThatFailsLeavesNothingBehind) {
  struct Case {
    std::unique_ptr<PooledReport> Report;
    std::span<const std::string_view> Columns;
  };
  std::vector<Case> cases;
  cases.push_back({reports::MakeVisitReport({}), reports::columns::kVisit});
  cases.push_back({reports::MakeVariabilityReport({}), reports::columns::kVariability});
  cases.push_back({reports::MakeNormsReport({}), reports::columns::kNorms});
  cases.push_back({reports::MakeScoresReport({}, {}), reports::columns::kScores});
  for (const auto& [report, columns] : cases) {
    AddTo(*report, Walk());
    const std::string before = CsvOf(columns, *report);
    AddACutTrialTo(*report);
    EXPECT_EQ(CsvOf(columns, *report), before);
    AddTo(*report, Walk(31));
    EXPECT_NE(CsvOf(columns, *report), before) << "a good one behind it counts";
  }
}

TEST(PooledReports, NormsForgetTheCurvesOfATrialWhoseToesFail) {
  // The knee stands in front of the toes, so the cut leaves its curves whole.
  sample::TrialBuilder builder = TrialOfOneStride("Left");
  builder.AddPoint("LKneeAngles", Standing(30, 0, 0))
      .AddPoint("RTOE", Standing(900, 120, 0))
      .AddPoint("LTOE", Moving({0, 0, 0}, {24, 0, 0}));
  OpenedWalk walk = Opened(builder);
  const auto report = reports::MakeNormsReport(Asking({"KneeAngles"}));
  const std::string before = CsvOf(reports::columns::kNorms, *report);
  const auto frameData = static_cast<std::uintmax_t>(walk.State().SeekPtrForFirstFrameData - 1);
  constexpr std::uintmax_t kFrameSize = 3 * 4 * 4;
  std::filesystem::resize_file(walk.File(), frameData + 81 * kFrameSize - 10);
  EXPECT_EQ(tests::ErrorNumberOf([&] { report->Add(walk.State()); }), tests::kInputPastEndOfFile);
  EXPECT_EQ(CsvOf(reports::columns::kNorms, *report), before);
}

TEST(VariabilityReport, RowsOfTheLabelsAskedFor) {
  const auto report = reports::MakeVariabilityReport(Asking({"lkneeangles "}));
  AddTo(*report, Walk(30));
  AddTo(*report, Walk(32));
  AddTo(*report, Walk(34));
  AddTo(*report, IncompleteWalk());
  EXPECT_EQ(CsvOf(reports::columns::kVariability, *report),
            "side,label,component,n,sd,unit\n"
            "Left,LKneeAngles,x,3,2,deg\n"
            "Left,LKneeAngles,y,3,0,deg\n"
            "Left,LKneeAngles,z,3,0,deg\n");
  EXPECT_EQ(TextOf(*report),
            "Side  Label        Component  Deviation (strides)  Unit\n"
            "Left  LKneeAngles  x                     2.00 (3)  deg\n"
            "Left  LKneeAngles  y                     0.00 (3)  deg\n"
            "Left  LKneeAngles  z                     0.00 (3)  deg\n");
}

TEST(VariabilityReport, LabelThatATrialLacksIsComplainedOf) {
  const auto report = reports::MakeVariabilityReport(Asking({"LKneeAngles", "Nose", "nose"}));
  EXPECT_THAT(AddTo(*report, Walk()), ElementsAre("point label not found: Nose"));
}

TEST(VariabilityReport, AllLabelsAreTakenWhereNoneIsAskedFor) {
  const auto report = reports::MakeVariabilityReport({});
  AddTo(*report, Walk());
  EXPECT_EQ(tests::LinesOf(CsvOf(reports::columns::kVariability, *report)).size(), 1U + 2 * 3)
      << "LTOE and LKneeAngles: RTOE has no right stride";
}

TEST(NormsReport, LabelsAreGivenWithoutTheirLetter) {
  const auto report = reports::MakeNormsReport(Asking({"kneeangles", "HipAngles"}));
  EXPECT_THAT(AddTo(*report, Walk(30)), ElementsAre("point label not found: HipAngles"));
  EXPECT_THAT(AddTo(*report, Walk(34, "Right")), ElementsAre("point label not found: HipAngles"));
  const auto lines = tests::LinesOf(CsvOf(reports::columns::kNorms, *report));
  ASSERT_EQ(lines.size(), 1U + 3 * 51 + 12);
  EXPECT_EQ(lines[0], "label,component,percent,mean,sd,n,unit");
  EXPECT_EQ(lines[1], "KneeAngles,x,0,32,2.8284271247461903,2,deg");
  EXPECT_EQ(lines[51], "KneeAngles,x,100,32,2.8284271247461903,2,deg");
  EXPECT_EQ(lines[52], "KneeAngles,y,0,2,0,2,deg");
  EXPECT_EQ(lines[156], "stride_time,,,0.78125,0,2,s");
}

TEST(NormsReport, TextHasABlockForEachComponentAndTheMeasures) {
  const auto report = reports::MakeNormsReport(Asking({"KneeAngles"}));
  AddTo(*report, Walk(30));
  AddTo(*report, Walk(34));
  const auto lines = tests::LinesOf(TextOf(*report));
  ASSERT_EQ(lines.size(), 3 * (2 + 51 + 1) + 13U);
  EXPECT_EQ(lines[0], "KneeAngles x (deg)");
  EXPECT_EQ(lines[2], "    0            32.00 ± 2.83 (2)");
  EXPECT_EQ(lines[165], "Stride time            s                     0.78 ± 0.00 (2)");
}

TEST(NormsReport, WrittenAsCsvIsReadAsNormals) {
  const auto report = reports::MakeNormsReport({});
  AddTo(*report, Walk(30));
  AddTo(*report, Walk(34));
  const auto read = visit::NormalsOfText(CsvOf(reports::columns::kNorms, *report));
  ASSERT_TRUE(std::holds_alternative<visit::Normals>(read))
      << std::get<visit::NormalFault>(read).What;
  const auto& normals = std::get<visit::Normals>(read);
  EXPECT_EQ(normals.Curve("KneeAngles", modVantrel::Component::X)->Mean[50], 32);
  EXPECT_EQ(normals.Measure("stride_time")->Mean, 0.78125);
}

TEST(NormsReport, WithoutATrialIsReadAsNormalsToo) {
  const auto report = reports::MakeNormsReport({});
  EXPECT_TRUE(std::holds_alternative<visit::Normals>(
      visit::NormalsOfText(CsvOf(reports::columns::kNorms, *report))));
}

TEST(ScoresReport, RowsAreTheVariablesOfBothSidesThenTheProfileScores) {
  visit::Normals normals;
  normals.CurveAt("KneeAngles", modVantrel::Component::X).Mean.fill(27);
  const auto report = reports::MakeScoresReport({}, normals);
  EXPECT_THAT(AddTo(*report, Walk(30)), IsEmpty());
  EXPECT_THAT(AddTo(*report, Walk(34)), IsEmpty());
  const auto lines = tests::LinesOf(CsvOf(reports::columns::kScores, *report));
  ASSERT_EQ(lines.size(), 1U + 9 + 9 + 3);
  EXPECT_EQ(lines[0], "side,variable,score,n,unit");
  EXPECT_EQ(lines[1], "Left,PelvisAngles.x,,0,deg");
  EXPECT_EQ(lines[7], "Left,KneeAngles.x,5,2,deg");
  EXPECT_EQ(lines[18], "Right,FootProgressAngles.z,,0,deg");
  EXPECT_EQ(lines[19], "Left,GPS,,2,deg");
  EXPECT_EQ(lines[20], "Right,GPS,,0,deg");
  EXPECT_EQ(lines[21], "Overall,GPS,,2,deg");
}

TEST(ScoresReport, NamesWhatItLacksBehindTheRowsAndTheText) {
  const auto report = reports::MakeScoresReport({}, {});
  AddTo(*report, Walk());
  Complaints behindRows;
  CsvOf(reports::columns::kScores,
        [&](reports::TableOutput& table) { behindRows = report->WriteRows(table); });
  ASSERT_EQ(behindRows.size(), 18U);
  EXPECT_EQ(behindRows[0], "Left PelvisAngles.x: no curve in the trials");
  EXPECT_EQ(behindRows[6], "Left KneeAngles.x: no curve in the normals");
  modAllPurpose::TextReport text;
  EXPECT_EQ(report->ShowText(text), behindRows);
  EXPECT_EQ(tests::LinesOf(text.Text()).at(10), "GPS                      -      -        -");
}

}  // namespace
