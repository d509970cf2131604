// SPDX-License-Identifier: GPL-3.0-or-later

#include <cmath>
#include <string>
#include <string_view>
#include <vector>

#include <gtest/gtest.h>

#include "gait/EventExtraction.h"
#include "gait/GcdCalcs.h"
#include "gait/GcdCurveTable.h"
#include "gait/GcdText.h"
#include "support/NumberForms.h"
#include "tests/GaitTrials.h"
#include "tests/OpenWithEvents.h"

namespace {

using namespace modVantrel;
using tests::Moving;
using tests::OpenedWalk;
using tests::OpenWithEvents;
using tests::Standing;

using Lines = std::vector<std::string>;

// The whole-frame trial with toe markers that walk along X: 800 along and 600 across in the stride.
sample::TrialBuilder TrialWithToes() {
  sample::TrialBuilder builder = tests::WholeFrameTrial();
  builder.AddPoint("LTOE", Moving({}, {16, 12, 0})).AddPoint("RTOE", Standing(572, 604, 99));
  return builder;
}

std::string Text(const FileState& state, const SubjectRecord& subject = {},
                 const GcdTextOptions& options = {}) {
  clsGcdCalcs calcs(state);
  return GcdText(calcs, 1, subject, options);
}

Lines TextLinesOf(const sample::TrialBuilder& builder) {
  OpenedWalk walk = OpenWithEvents(builder);
  return tests::LinesOf(Text(walk.State()), "\r\n");
}

// The 51 lines below the line `name`; empty where there is no such line.
Lines CurveNamed(const Lines& lines, const std::string& name) {
  for (std::size_t i = 0; i + 51 < lines.size(); ++i) {
    if (lines[i] == name) {
      const auto first = lines.begin() + static_cast<std::ptrdiff_t>(i) + 1;
      return {first, first + 51};
    }
  }
  return {};
}

std::string RepeatedLine(const std::string& line, int count) {
  std::string text;
  for (int i = 0; i < count; ++i) text += line;
  return text;
}

constexpr std::string_view kHeader =
    "#!DST-0.1 GCD Quarrin PhD 1.00\r\n"
    "$Gender\r\n"
    "NotSpecified\r\n"
    "$Age\r\n"
    "0.00\r\n";

constexpr std::string_view kMeasures =
    "!LeftStrideTime\r\n"
    "0.78125\r\n"
    "!LeftCadence\r\n"
    "1.27999997139\r\n"
    "!LeftStePTime\r\n"
    "50.0\r\n"
    "!LeftOppositeFootOff\r\n"
    "10.0\r\n"
    "!LeftOppositeFootContact\r\n"
    "50.0\r\n"
    "!LeftFootOff\r\n"
    "60.0\r\n"
    "!LeftSingleSupport\r\n"
    "40.0\r\n"
    "!LeftDoubleSupport\r\n"
    "20.0\r\n"
    "!LeftStrideLength\r\n"
    "1005.0\r\n"
    "!LeftStePLength\r\n"
    "502.5\r\n"
    "!LeftSpeed\r\n"
    "1286.400024414063\r\n";

constexpr std::string_view kVideoRate =
    "!VideoRate\r\n"
    "64.0\r\n";

// Every number is checked by hand: the stride is 50 frames of 1/64 s, 1.28 is
// 1.2799999713897705... as a float and 1286.4 is 1286.4000244140625, a tie at twelve decimals.
TEST(GcdText, WholeFileOfASmallTrial) {
  sample::TrialBuilder builder = TrialWithToes();
  builder.AddPoint("LKneeAngles", Moving({}, {1, -1, 0.5F}))
      .AddPoint("RKneeAngles", Standing(1, 2, 3))
      .AddPoint("LAnklePower", Standing(1, 2, -3.25F));
  OpenedWalk walk = OpenWithEvents(builder);
  std::string expected(kHeader);
  expected += kMeasures;
  expected += kVideoRate;
  expected += "!LeftKneeFlexExt\r\n";
  for (int frame = 17; frame <= 67; ++frame) expected += std::to_string(frame) + ".0\r\n";
  expected += "!LeftKneeValgVar\r\n";
  for (int frame = 17; frame <= 67; ++frame) expected += '-' + std::to_string(frame) + ".0\r\n";
  expected += "!LeftKneeRotation\r\n";
  for (int frame = 17; frame <= 67; ++frame) {
    expected += std::to_string(frame / 2) + (frame % 2 == 0 ? ".0\r\n" : ".5\r\n");
  }
  expected += "!LeftAnklePower\r\n" + RepeatedLine("-3.25\r\n", 51);
  EXPECT_EQ(Text(walk.State()), expected);
}

TEST(GcdText, TrialWithoutCurvesHoldsHeaderAndMeasures) {
  OpenedWalk walk = OpenWithEvents(TrialWithToes());
  EXPECT_EQ(Text(walk.State()),
            std::string(kHeader) + std::string(kMeasures) + std::string(kVideoRate));
}

TEST(GcdText, HeaderNamesTheSubject) {
  OpenedWalk walk = OpenWithEvents(TrialWithToes());
  using namespace std::chrono;
  const SubjectRecord subject{"female", year_month_day(2014y, March, 2d),
                              year_month_day(2026y, May, 11d)};
  const Lines lines = tests::LinesOf(Text(walk.State(), subject), "\r\n");
  EXPECT_EQ(lines[2], "Female");
  EXPECT_EQ(lines[4], "12.20") << "4453 days";
}

TEST(GcdText, AppendModeLeavesOutTheHeader) {
  OpenedWalk walk = OpenWithEvents(TrialWithToes());
  EXPECT_EQ(Text(walk.State(), {}, {.AppendMode = true}),
            std::string(kMeasures) + std::string(kVideoRate));
}

TEST(GcdText, VideoRateCanBeSuppressed) {
  OpenedWalk walk = OpenWithEvents(TrialWithToes());
  EXPECT_EQ(Text(walk.State(), {}, {.SuppressVideoRate = true}),
            std::string(kHeader) + std::string(kMeasures));
  EXPECT_EQ(Text(walk.State(), {}, {.AppendMode = true, .SuppressVideoRate = true}), kMeasures);
}

TEST(GcdText, WalkAlongYExchangesSagittalAndCoronal) {
  sample::TrialBuilder builder = tests::WholeFrameTrial();
  builder.AddPoint("LTOE", Moving({}, {1, 16, 0}))
      .AddPoint("RTOE", Standing(0, 0, 0))
      .AddPoint("LKneeAngles", Standing(11, 22, 33));
  const Lines lines = TextLinesOf(builder);
  EXPECT_EQ(CurveNamed(lines, "!LeftKneeFlexExt"), Lines(51, "22.0"));
  EXPECT_EQ(CurveNamed(lines, "!LeftKneeValgVar"), Lines(51, "11.0"));
  EXPECT_EQ(CurveNamed(lines, "!LeftKneeRotation"), Lines(51, "33.0"));
}

TEST(GcdText, WithoutToesSagittalValuesAreZeroAndCoronalOnesX) {
  sample::TrialBuilder builder = tests::WholeFrameTrial();
  builder.AddPoint("LKneeAngles", Standing(11, 22, 33));
  const Lines lines = TextLinesOf(builder);
  EXPECT_EQ(CurveNamed(lines, "!LeftKneeFlexExt"), Lines(51, "0.0"));
  EXPECT_EQ(CurveNamed(lines, "!LeftKneeValgVar"), Lines(51, "11.0"));
  EXPECT_EQ(CurveNamed(lines, "!LeftKneeRotation"), Lines(51, "33.0"));
}

TEST(GcdText, AlternativeLabelStandsInForTheMissingOne) {
  sample::TrialBuilder builder = TrialWithToes();
  builder.AddPoint("LSpineAngles", Standing(1, 2, 3)).AddPoint("LThoraxAngles", Standing(4, 5, 6));
  const Lines lines = TextLinesOf(builder);
  EXPECT_EQ(CurveNamed(lines, "!LeftTrunkFlexExt"), Lines(51, "1.0"));
  EXPECT_EQ(CurveNamed(lines, "!LeftTrunkLateralBend"), Lines(51, "2.0"));
  EXPECT_EQ(CurveNamed(lines, "!LeftTrunkRotation"), Lines(51, "3.0"));
  EXPECT_EQ(CurveNamed(lines, "!LeftTrunkFlexExtAbs"), Lines(51, "4.0"));
}

TEST(GcdText, LabelItselfComesBeforeItsAlternative) {
  sample::TrialBuilder builder = TrialWithToes();
  builder.AddPoint("LSpineAngles", Standing(1, 2, 3)).AddPoint("LTrunkAngles", Standing(7, 8, 9));
  EXPECT_EQ(CurveNamed(TextLinesOf(builder), "!LeftTrunkFlexExt"), Lines(51, "7.0"));
}

TEST(GcdText, LabelThatIsTheLetterAloneStandsInForEveryMissingLabelWithoutAlternative) {
  sample::TrialBuilder builder = TrialWithToes();
  builder.AddPoint("L", Standing(1, 2, 3)).AddPoint("LKneeAngles", Standing(4, 5, 6));
  const Lines lines = TextLinesOf(builder);
  EXPECT_EQ(CurveNamed(lines, "!LeftWristFlexExt"), Lines(51, "1.0"));
  EXPECT_EQ(CurveNamed(lines, "!LeftFootProgression"), Lines(51, "3.0"));
  EXPECT_EQ(CurveNamed(lines, "!LeftKneeFlexExt"), Lines(51, "4.0"));
  EXPECT_EQ(CurveNamed(lines, "!LeftTrunkFlexExt"), Lines()) << "its alternative has a name";
  EXPECT_EQ(CurveNamed(lines, "!LeftTrunkFlexExtAbs"), Lines());
}

TEST(GcdText, LabelsAreFoundInAnyCase) {
  sample::TrialBuilder builder = TrialWithToes();
  builder.AddPoint("lkneeangles", Standing(1, 2, 3));
  EXPECT_EQ(CurveNamed(TextLinesOf(builder), "!LeftKneeFlexExt"), Lines(51, "1.0"));
}

TEST(GcdText, SupinationAndSkewKeepTheSideInTheirNames) {
  sample::TrialBuilder builder = TrialWithToes();
  builder.AddPoint("LSupination", Standing(1, 2, 3)).AddPoint("LSkew", Standing(4, 5, 6));
  const Lines lines = TextLinesOf(builder);
  EXPECT_EQ(CurveNamed(lines, "!LeftLeftSupination"), Lines(51, "1.0"));
  EXPECT_EQ(CurveNamed(lines, "!LeftRightSupination"), Lines(51, "2.0"));
  EXPECT_EQ(CurveNamed(lines, "!LeftLeftSkew"), Lines(51, "4.0"));
  EXPECT_EQ(CurveNamed(lines, "!LeftRightSkew"), Lines(51, "5.0"));
}

TEST(GcdText, MomentsAreScaledByTheSinglePrecisionThousandth) {
  // 5 times the float 0.001 is 0.00500000023..., as a float 0.0050000003539...; the double 0.001
  // would give 0.0049999998882...
  sample::TrialBuilder builder = TrialWithToes();
  builder.AddPoint("LHipMoment", Standing(5, 1000, -9)).AddPoint("LHipPower", Standing(1, 2, 5));
  const Lines lines = TextLinesOf(builder);
  EXPECT_EQ(CurveNamed(lines, "!LeftHipFlexExtMoment"), Lines(51, "0.005000000354"));
  EXPECT_EQ(CurveNamed(lines, "!LeftHipAbAdductMoment"), Lines(51, "1.0"));
  EXPECT_EQ(CurveNamed(lines, "!LeftHipRotationMoment"), Lines(51, "-0.009000000544"));
  EXPECT_EQ(CurveNamed(lines, "!LeftHipPower"), Lines(51, "5.0")) << "powers are not scaled";
}

TEST(GcdText, MissingSamplesPrintAsNaN) {
  sample::TrialBuilder builder = TrialWithToes();
  builder.AddPoint("LKneeAngles", Standing(std::nanf(""), 2, 3));
  const Lines lines = TextLinesOf(builder);
  EXPECT_EQ(CurveNamed(lines, "!LeftKneeFlexExt"), Lines(51, "NaN"));
  EXPECT_EQ(CurveNamed(lines, "!LeftKneeValgVar"), Lines(51, "2.0"));
}

TEST(GcdText, ValuesPrintWithOneToTwelveDecimals) {
  const modAllPurposeNumbers::NumberPattern value("0.0###########");
  EXPECT_EQ(modAllPurposeNumbers::FormatNumber(value, 12.5), "12.5");
  EXPECT_EQ(modAllPurposeNumbers::FormatNumber(value, 3), "3.0");
  EXPECT_EQ(modAllPurposeNumbers::FormatNumber(value, 0.000123456789012345), "0.000123456789");
}

// The names that readers of the format know, in the order in which they are written.
Lines KnownRows() {
  return {"WristAngles||WristFlexExt|WristUlRadDeviation|",
          "ElbowAngles||ElbowFlexExt||ElbowProSup",
          "HeadAngles||HeadFlexExt|HeadLateralBend|HeadRotation",
          "ShoulderAngles||ShoulderFlexExt|ShoulderAbAdduct|ShoulderRotation",
          "TrunkAngles|SpineAngles|TrunkFlexExt|TrunkLateralBend|TrunkRotation",
          "TrunkAbsAngles|ThoraxAngles|TrunkFlexExtAbs|TrunkLateralBendAbs|TrunkRotationAbs",
          "PelvisAnglesRab||PelvicTiltRab|PelvicObliquityRab|PelvicRotationRab",
          "PelvisAnglesBaker||PelvicTiltBaker|PelvicObliquityBaker|PelvicRotationBaker",
          "AbsAnkleAngle||AnkleFlexExtAbs||",
          "PelvisAngles||PelvicTilt|PelvicObliquity|PelvicRotation",
          "HipAngles||HipFlexExt|HipAbAdduct|HipRotation",
          "KneeAngles||KneeFlexExt|KneeValgVar|KneeRotation",
          "AnkleAngles||DorsiPlanFlex||FootRotation",
          "FootProgressAngles||||FootProgression",
          "TIBA||TibiaTilt|TibiaObliquity|TibiaRotation",
          "ANKA||AnkleComplexDorsiPlanFlex|AnkleComplexValgVar|AnkleComplexRotation",
          "HFGA||HindFootTilt|HindFootObliquity|",
          "MDFA||MidFootDorsiPlanFlex|MidFootSupPron|MidFootAbAdduct",
          "FFGA||ForeFootTilt||",
          "HLXA||HalDorsiPlanFlex|HalValgVar|",
          "Supination||LeftSupination|RightSupination|",
          "Skew||LeftSkew|RightSkew|",
          "HipMoment||HipFlexExtMoment|HipAbAdductMoment|HipRotationMoment",
          "KneeMoment||KneeFlexExtMoment|KneeValgVarMoment|KneeRotationMoment",
          "AnkleMoment||DorsiPlanFlexMoment|FootAbAdductMoment|FootRotationMoment",
          "HipPower||||HipPower",
          "KneePower||||KneePower",
          "AnklePower||||AnklePower"};
}

TEST(GcdCurveTable, WritesTheNamesOfEveryLabel) {
  Lines rows;
  for (const GcdCurveSpec& row : GcdCurveTable()) {
    std::string text(row.Label);
    for (const auto cell : {row.Alternative, row.Sagittal, row.Coronal, row.Axial}) {
      text.append("|").append(cell);
    }
    rows.push_back(text);
    EXPECT_EQ(row.Scale, row.Label.ends_with("Moment") ? 0.001F : 1.0F) << row.Label;
  }
  EXPECT_EQ(rows, KnownRows());
}

TEST(GcdText, CurvesStandInTheOrderOfTheTable) {
  sample::TrialBuilder builder = TrialWithToes();
  std::size_t names = 0;
  // Added back to front.
  std::vector<std::string> labels;
  for (const GcdCurveSpec& row : GcdCurveTable()) {
    labels.insert(labels.begin(), std::string("L").append(row.Label));
    for (const auto name : {row.Sagittal, row.Coronal, row.Axial}) names += name.empty() ? 0U : 1U;
  }
  for (const std::string& label : labels) builder.AddPoint(label, Standing(1, 2, 3));
  const Lines lines = TextLinesOf(builder);
  EXPECT_EQ(lines.size(), 5U + 24U + 52U * names);
  std::size_t at = 29;
  for (const GcdCurveSpec& row : GcdCurveTable()) {
    for (const auto name : {row.Sagittal, row.Coronal, row.Axial}) {
      if (name.empty()) continue;
      ASSERT_EQ(lines[at], std::string("!Left").append(name));
      at += 52;
    }
  }
}

TEST(GcdText, AnatomicalAxesNeedNoToeMarkers) {
  sample::TrialBuilder builder = tests::WholeFrameTrial();
  builder.AddPoint("LKneeAngles", Standing(10, 20, 30));
  OpenedWalk walk = OpenWithEvents(builder);
  const Lines lines = tests::LinesOf(Text(walk.State(), {}, {.Axes = GcdAxes::Anatomical}), "\r\n");
  EXPECT_EQ(CurveNamed(lines, "!LeftKneeFlexExt"), Lines(51, "10.0"));
  EXPECT_EQ(CurveNamed(lines, "!LeftKneeValgVar"), Lines(51, "20.0"));
  EXPECT_EQ(CurveNamed(lines, "!LeftKneeRotation"), Lines(51, "30.0"));
}

}  // namespace
