// SPDX-License-Identifier: GPL-3.0-or-later

#include <fstream>
#include <string>
#include <utility>
#include <vector>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "tests/GaitTrials.h"
#include "tests/checkup/CheckedTrials.h"

// Units, force plates, the subject and the values that the file itself gives.
namespace {

using modVantrel::GaitSide;
using modVantrel::SummaryStride;
using sample::IntegerParam;
using sample::TextParam;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;
using tests::Check;
using tests::CleanWalk;
using tests::MessageOf;
using tests::Places;

TEST(Units, ThatAreMissingCountAsMillimetres) {
  auto walk = CleanWalk();
  const auto findings = Check(walk.DropParam("POINT", "UNITS"));
  ASSERT_THAT(Places(findings), ElementsAre("units at POINT:UNITS"));
  EXPECT_THAT(findings[0].Message, HasSubstr("as if it were mm"));
}

TEST(Units, OtherThanMetresAreNamed) {
  auto walk = CleanWalk();
  const auto findings = Check(walk.SetParam("POINT", TextParam("UNITS", "inch")));
  EXPECT_THAT(MessageOf(findings, "units"), HasSubstr("POINT:UNITS is \"inch\""));
}

TEST(Units, MayBeInAnyCaseAndEndInZeroBytes) {
  for (const std::string& unit : {std::string("MM"), std::string("mm\0\0", 4), std::string("Mm")}) {
    auto walk = CleanWalk();
    EXPECT_THAT(Places(Check(walk.SetParam("POINT", TextParam("UNITS", unit)))), IsEmpty());
  }
}

sample::TrialBuilder WithMomentUnit(const std::string& unit) {
  auto walk = CleanWalk();
  walk.AddPoint("LKneeMoment", tests::Standing(1, 2, 3));
  walk.SetParam("POINT", sample::TextListParam("MOMENTS", {"LKneeMoment"}));
  return walk.SetParam("POINT", TextParam("MOMENT_UNITS", unit));
}

TEST(MomentUnits, OtherThanNewtonMillimetresAreNamed) {
  for (const char* unit : {"Nm", "Nm/kg", "N.m"}) {
    const auto findings = Check(WithMomentUnit(unit));
    ASSERT_THAT(Places(findings), ElementsAre("moment-units at POINT:MOMENT_UNITS")) << unit;
    EXPECT_THAT(findings[0].Message, HasSubstr(unit));
  }
}

TEST(MomentUnits, OfNewtonMillimetresAreFine) {
  for (const char* unit : {"Nmm", "N.mm", "Nmm/kg", "N.mm/kg", "nmm/KG", ""}) {
    EXPECT_THAT(Places(Check(WithMomentUnit(unit))), IsEmpty()) << unit;
  }
}

TEST(MomentUnits, WithoutMomentsDoNotCount) {
  auto walk = CleanWalk();
  EXPECT_THAT(Places(Check(walk.SetParam("POINT", TextParam("MOMENT_UNITS", "Nm")))), IsEmpty());
}

// A force plate of six channels, whose parameters are all there.
sample::TrialBuilder WithPlate() {
  auto walk = CleanWalk();
  for (int i = 2; i <= 6; ++i) {
    walk.AddAnalog(tests::Numbered("F", i), "Force", [](std::int32_t) { return 0.0F; });
  }
  walk.SetParam("FORCE_PLATFORM", IntegerParam("USED", 1));
  walk.SetParam("FORCE_PLATFORM", sample::IntegerListParam("TYPE", {2}));
  walk.SetParam("FORCE_PLATFORM",
                {"CORNERS", {3, 4, 1}, std::vector<float>(12, 1.0F), "", false, {}});
  walk.SetParam("FORCE_PLATFORM", {"ORIGIN", {3, 1}, std::vector<float>(3, 1.0F), "", false, {}});
  return walk.SetParam(
      "FORCE_PLATFORM",
      {"CHANNEL", {6, 1}, std::vector<std::int16_t>{1, 2, 3, 4, 5, 6}, "", false, {}});
}

TEST(ForcePlates, ThatAreCompleteAreFine) { EXPECT_THAT(Places(Check(WithPlate())), IsEmpty()); }

TEST(ForcePlates, LackAParameter) {
  for (const std::string name : {"CORNERS", "ORIGIN", "TYPE", "CHANNEL"}) {
    auto walk = WithPlate();
    EXPECT_THAT(Places(Check(walk.DropParam("FORCE_PLATFORM", name))),
                ElementsAre("force-plates at FORCE_PLATFORM:" + name));
  }
}

TEST(ForcePlates, HaveAParameterThatIsShort) {
  auto walk = WithPlate();
  walk.SetParam("FORCE_PLATFORM", IntegerParam("USED", 2));
  walk.SetParam("FORCE_PLATFORM", sample::IntegerListParam("TYPE", {2, 2}));
  const auto findings = Check(walk);
  EXPECT_THAT(Places(findings), ElementsAre("force-plates at FORCE_PLATFORM:CHANNEL",
                                            "force-plates at FORCE_PLATFORM:CORNERS",
                                            "force-plates at FORCE_PLATFORM:ORIGIN"));
  EXPECT_THAT(findings[0].Message, HasSubstr("short for 1 of 2 force plates"));
}

TEST(ForcePlates, OfTypeThreeNeedEightChannels) {
  auto walk = WithPlate();
  walk.SetParam("FORCE_PLATFORM", sample::IntegerListParam("TYPE", {3}));
  EXPECT_THAT(Places(Check(walk)), ElementsAre("force-plates at FORCE_PLATFORM:CHANNEL"));
}

TEST(ForcePlates, UseChannelsThatTheFileLacks) {
  auto walk = WithPlate();
  walk.SetParam("FORCE_PLATFORM",
                {"CHANNEL", {6, 1}, std::vector<std::int16_t>{1, 2, 3, 4, 5, 7}, "", false, {}});
  const auto findings = Check(walk);
  ASSERT_THAT(Places(findings), ElementsAre("force-plates at FORCE_PLATFORM:CHANNEL"));
  EXPECT_THAT(findings[0].Message, HasSubstr("channel 7, but the file has 6 channels"));
}

TEST(SubjectMissing, SaysWhatTheGcdHeaderWillSay) {
  auto walk = CleanWalk();
  walk.DropParam("SUBJECTS", "GENDER").DropParam("SUBJECTS", "DOB").DropParam("TRIAL", "DATE");
  const auto findings = Check(walk);
  ASSERT_THAT(Places(findings), ElementsAre("subject-missing at SUBJECT"));
  EXPECT_EQ(findings[0].Level, modVantrel::Severity::Note);
  EXPECT_EQ(findings[0].Message,
            "Neither the trial nor subject.ini in its folder gives the gender, date of birth and "
            "date of the visit: GCD files say NotSpecified for the gender and 0.00 for the age.");
}

TEST(SubjectMissing, IsHealedByTheFileBesideTheTrial) {
  auto walk = CleanWalk();
  walk.DropParam("SUBJECTS", "GENDER");
  const tests::TemporaryFolder folder;
  walk.Build().WriteTo(folder / "trial.c3d");
  std::ofstream(folder / "subject.ini") << "Gender = Male\n";
  EXPECT_THAT(Places(modVantrel::CheckTrial((folder / "trial.c3d").string())), IsEmpty());
}

TEST(SubjectDate, ThatCannotBeReadIsNotCalledMissing) {
  auto walk = CleanWalk();
  const auto findings = Check(walk.SetParam("TRIAL", TextParam("DATE", "11.05.2026")));
  ASSERT_THAT(Places(findings), ElementsAre("subject-date at TRIAL:DATE"));
  EXPECT_THAT(findings[0].Message, HasSubstr("TRIAL:DATE is \"11.05.2026\""));
}

TEST(SubjectDate, OfABirthBehindTheVisit) {
  auto walk = CleanWalk();
  const auto findings = Check(walk.SetParam("SUBJECTS", TextParam("DOB", "2026-05-12")));
  ASSERT_THAT(Places(findings), ElementsAre("subject-date at SUBJECTS:DOB"));
  EXPECT_THAT(findings[0].Message, HasSubstr("born on 2026-05-12"));
}

TEST(SubjectDate, OfABirthOnTheDayOfTheVisitIsFine) {
  auto walk = CleanWalk();
  EXPECT_THAT(Places(Check(walk.SetParam("SUBJECTS", TextParam("DOB", "2026-05-11")))), IsEmpty());
}

// The clean walk with one value of an ANALYSIS group.
sample::TrialBuilder WithAnalysis(const std::string& name, const std::string& context, float value,
                                  const std::string& unit = "") {
  auto walk = CleanWalk();
  walk.SetParam("ANALYSIS", sample::TextListParam("NAMES", {name}));
  walk.SetParam("ANALYSIS", sample::TextListParam("CONTEXTS", {context}));
  if (!unit.empty()) walk.SetParam("ANALYSIS", sample::TextListParam("UNITS", {unit}));
  return walk.SetParam("ANALYSIS", sample::SingleListParam("VALUES", {value}));
}

// Two left strides of 100 and 110 steps a minute and one right one without a length.
std::vector<SummaryStride> Strides(const modVantrel::FileState& /*state*/) {
  return {{GaitSide::Left,
           {{"cadence", 100}, {"stride_length", 1.2}, {"stride_time", 2}, {"foot_off", 60}}},
          {GaitSide::Left, {{"cadence", 110}, {"stride_length", 1.3}}},
          {GaitSide::Right, {{"cadence", 90}}}};
}

TEST(AnalysisDiffers, WhereNoStrideOfTheSideIsNear) {
  const auto findings = Check(WithAnalysis("Cadence", "Left", 104), Strides);
  ASSERT_THAT(Places(findings), ElementsAre("analysis-differs at ANALYSIS:VALUES Left Cadence"));
  EXPECT_THAT(findings[0].Message,
              HasSubstr("Left Cadence is 104, but its own events and markers give 100 and 110"));
}

TEST(AnalysisDiffers, IsNotFoundWithinOnePercentOfTheGivenValue) {
  for (const float given : {100.0F, 109.0F, 110.0F, 100.0F / 0.99F, 110.0F / 1.01F}) {
    EXPECT_THAT(Places(Check(WithAnalysis("cadence ", "LEFT", given), Strides)), IsEmpty())
        << given;
  }
  EXPECT_EQ(Check(WithAnalysis("Cadence", "Left", 100.0F / 0.989F), Strides).size(), 1U);
  EXPECT_EQ(Check(WithAnalysis("Cadence", "Left", 110.0F / 1.011F), Strides).size(), 1U);
}

TEST(AnalysisDiffers, ComparesOnlyTheSameSideAndWhatIsThere) {
  EXPECT_THAT(Places(Check(WithAnalysis("Cadence", "Right", 90), Strides)), IsEmpty());
  EXPECT_EQ(Check(WithAnalysis("Cadence", "Right", 100), Strides).size(), 1U);
  EXPECT_THAT(Places(Check(WithAnalysis("Stride Length", "Right", 5), Strides)), IsEmpty());
  EXPECT_THAT(Places(Check(WithAnalysis("Cadence", "General", 5), Strides)), IsEmpty());
  EXPECT_THAT(Places(Check(WithAnalysis("Normalcy Index", "Left", 5), Strides)), IsEmpty());
}

// The names that capture systems give, beside those that the measures have in a summary.
TEST(AnalysisDiffers, ComparesTwelveMeasures) {
  for (const auto& [name, measure] :
       {std::pair{"Cadence", "cadence"}, std::pair{"Walking Speed", "walking_speed"},
        std::pair{"Stride Time", "stride_time"}, std::pair{"Step Time", "step_time"},
        std::pair{"Opposite Foot Off", "opposite_foot_off"},
        std::pair{"Opposite Foot Contact", "opposite_foot_contact"},
        std::pair{"Foot Off", "foot_off"}, std::pair{"Single Support", "single_support"},
        std::pair{"Double Support", "double_support"}, std::pair{"Stride Length", "stride_length"},
        std::pair{"Step Length", "step_length"}, std::pair{"Step Width", "step_width"}}) {
    const auto strides = [measure = measure](const modVantrel::FileState&) {
      return std::vector<SummaryStride>{{GaitSide::Right, {{measure, 8}}}};
    };
    EXPECT_THAT(MessageOf(Check(WithAnalysis(name, "Right", 9), strides), "analysis-differs"),
                HasSubstr(std::string("Right ") + name +
                          " is 9, but its own events and markers "
                          "give 8 (1 stride)"));
    EXPECT_THAT(Places(Check(WithAnalysis(name, "Right", 8), strides)), IsEmpty()) << name;
  }
}

TEST(AnalysisDiffers, GoesByTheUnitOfTheValue) {
  EXPECT_THAT(Places(Check(WithAnalysis("Stride Length", "Left", 1300, "mm"), Strides)), IsEmpty());
  EXPECT_THAT(Places(Check(WithAnalysis("Foot Off", "Left", 1.2F, "s"), Strides)), IsEmpty());
  EXPECT_EQ(Check(WithAnalysis("Stride Length", "Left", 1300, "m"), Strides).size(), 1U);
}

TEST(AnalysisDiffers, IsNotAskedWithoutAFunctionForTheSummary) {
  EXPECT_THAT(Places(Check(WithAnalysis("Cadence", "Left", 5))), IsEmpty());
}

TEST(AnalysisDiffers, OutlivesAnErrorOfTheSummary) {
  const auto failing = [](const modVantrel::FileState&) -> std::vector<SummaryStride> {
    throw modAllPurpose::RuntimeError(modAllPurpose::ErrorNumber::Overflow);
  };
  auto walk = WithAnalysis("Cadence", "Left", 5);
  EXPECT_THAT(Places(Check(walk.DropParam("SUBJECTS", "GENDER"), failing)),
              ElementsAre("subject-missing at SUBJECT"));
}

}  // namespace
