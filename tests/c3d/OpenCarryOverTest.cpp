// SPDX-License-Identifier: GPL-3.0-or-later

#include <array>
#include <cstdint>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "c3d/LabelTables.h"
#include "c3d/OpenC3dFile.h"
#include "tests/TestTrials.h"

// What an open leaves behind for the next one: the label prefix on purpose, and after a failed open
// the fields that it did not reach.
namespace {

using namespace modVantrel;
using sample::Trial;
using sample::TrialBuilder;
using tests::Entries;
using tests::Origin;
using tests::Silence;

// A trial with the labels `first` and `second`.
TrialBuilder WithLabels(const std::string& first, const std::string& second) {
  return TrialBuilder().AddPoint(first, Origin).AddPoint(second, Origin);
}

TrialBuilder& UsingPrefixes(TrialBuilder& builder, std::int16_t uses) {
  return builder.SetParam("SUBJECTS", sample::IntegerParam("USES_PREFIXES", uses));
}

TrialBuilder& WithPrefixes(TrialBuilder& builder, const std::vector<std::string>& prefixes) {
  return builder.SetParam("SUBJECTS", sample::TextListParam("LABEL_PREFIXES", prefixes));
}

TrialBuilder Prefixed(const std::string& prefix, const std::string& first,
                      const std::string& second) {
  TrialBuilder builder = WithLabels(first, second);
  UsingPrefixes(builder, 1);
  return WithPrefixes(builder, {prefix});
}

class OpenCarryOverTest : public testing::Test {
 protected:
  void Given(const TrialBuilder& builder) { ASSERT_EQ(opener_.Open(builder), OpenResult::Success); }
  FileState& State() { return opener_.State(); }
  std::vector<std::string> PointLabels() { return Entries(State().PointLabels); }

  tests::TrialOpener opener_;
};

using Labels = std::vector<std::string>;

TEST_F(OpenCarryOverTest, ThePrefixIsCutInAnyCaseAndTheRestKeepsItsCase) {
  Given(Prefixed("S1:", "s1:LASI", "LASI"));
  EXPECT_EQ(PointLabels(), (Labels{"LASI", "LASI"}));
  Given(Prefixed("S1:", "S1:LasI", "S2:LASI"));
  EXPECT_EQ(PointLabels(), (Labels{"LasI", "S2:LASI"}));
}

TEST_F(OpenCarryOverTest, ALabelThatIsThePrefixBecomesEmptyAndAShorterOneStays) {
  Given(Prefixed("S1:", "S1:", "S1"));
  EXPECT_EQ(PointLabels(), (Labels{"", "S1"}));
}

TEST_F(OpenCarryOverTest, ThePrefixIsCutOnce) {
  Given(Prefixed("A", "AAB", " AB"));
  EXPECT_EQ(PointLabels(), (Labels{"AB", "B"}));
}

TEST_F(OpenCarryOverTest, BlanksBehindTheCutPrefixStay) {
  Given(Prefixed("S1:", "S1: LASI", "LASI"));
  EXPECT_EQ(PointLabels(), (Labels{" LASI", "LASI"}));
}

TEST_F(OpenCarryOverTest, OnlyTheFirstPrefixCounts) {
  TrialBuilder builder = WithLabels("S1:A", "S2:B");
  UsingPrefixes(builder, 1);
  Given(WithPrefixes(builder, {"S1:", "S2:"}));
  EXPECT_EQ(PointLabels(), (Labels{"A", "S2:B"}));
}

TEST_F(OpenCarryOverTest, APrefixOutsideAsciiIsCutInAnyCase) {
  Given(Prefixed("M\xDCLLER:", "m\xFCller:LASI", "M\xDCLLE"));
  EXPECT_EQ(State().LabelPrefix, "M\u00DCLLER:");
  EXPECT_EQ(PointLabels(), (Labels{"LASI", "M\u00DCLLE"}));
  Given(Prefixed("\xFF", "\x9F\xFFX", "\x80X"));
  EXPECT_EQ(PointLabels(), (Labels{"\u00FFX", "\u20ACX"}));
}

TEST_F(OpenCarryOverTest, AnalogLabelsAndDescriptionsLoseThePrefixToo) {
  Given(Prefixed("S1:", "A", "B").AddAnalog("s1:FZ1", "S1:force", Silence));
  EXPECT_EQ(Entries(State().AnalogLabels), Labels{"FZ1"});
  EXPECT_EQ(Entries(State().AnalogDescriptions), Labels{"force"});
}

TEST_F(OpenCarryOverTest, ThePrefixIsNotReadWherePrefixesAreNotUsed) {
  TrialBuilder builder = WithLabels("S1:A", "B");
  UsingPrefixes(builder, 0);
  Given(WithPrefixes(builder, {"S1:"}));
  EXPECT_FALSE(State().UsesPrefixes);
  EXPECT_EQ(State().LabelPrefix, "");
  EXPECT_EQ(PointLabels(), (Labels{"S1:A", "B"}));
}

TEST_F(OpenCarryOverTest, ANextTrialWithoutTheParametersKeepsUsesPrefixesAndPrefix) {
  Given(Prefixed("S1:", "S1:A", "B"));
  Given(WithLabels("S1:C", "D"));
  EXPECT_TRUE(State().UsesPrefixes);
  EXPECT_EQ(State().LabelPrefix, "S1:");
  EXPECT_EQ(PointLabels(), (Labels{"C", "D"}));
}

TEST_F(OpenCarryOverTest, ANextTrialThatUsesNoPrefixesIsStillCutByTheFormerOne) {
  Given(Prefixed("S1:", "S1:A", "B"));
  TrialBuilder next = WithLabels("S1:C", "D");
  Given(UsingPrefixes(next, 0));
  EXPECT_FALSE(State().UsesPrefixes);
  EXPECT_EQ(State().LabelPrefix, "S1:");
  EXPECT_EQ(PointLabels(), (Labels{"C", "D"}));
}

TEST_F(OpenCarryOverTest, ANextTrialWithPrefixesAloneIsReadBecauseTheFormerOneUsedThem) {
  Given(Prefixed("S1:", "S1:A", "B"));
  TrialBuilder next = WithLabels("S1:C", "S2:D");
  Given(WithPrefixes(next, {"S2:"}));
  EXPECT_EQ(State().LabelPrefix, "S2:");
  EXPECT_EQ(PointLabels(), (Labels{"S1:C", "D"}));
}

TEST_F(OpenCarryOverTest, ParametersOfAnotherTypeKeepWhatWas) {
  Given(Prefixed("S1:", "S1:A", "B"));
  Given(WithLabels("S1:C", "D")
            .SetParam("SUBJECTS", sample::SingleParam("USES_PREFIXES", 0))
            .SetParam("SUBJECTS", sample::IntegerParam("LABEL_PREFIXES", 3)));
  EXPECT_TRUE(State().UsesPrefixes);
  EXPECT_EQ(State().LabelPrefix, "S1:");
}

TEST_F(OpenCarryOverTest, AFreshStateKnowsNoPrefix) {
  tests::TrialOpener other;
  Given(Prefixed("S1:", "S1:A", "B"));
  ASSERT_EQ(other.Open(WithLabels("S1:C", "D")), OpenResult::Success);
  EXPECT_EQ(Entries(other.State().PointLabels), (Labels{"S1:C", "D"}));
}

TEST(WithoutPrefix, AnEmptyPrefixLeavesEveryLabel) {
  EXPECT_EQ(WithoutPrefix("LASI", ""), "LASI");
  EXPECT_EQ(WithoutPrefix("", ""), "");
  EXPECT_EQ(WithoutPrefix("", "S1:"), "");
}

// A failed open behind a good one.
class FailedOpenTest : public OpenCarryOverTest {
 protected:
  void SetUp() override {
    Given(WithLabels("A", "B").AddAnalog("FZ1", "force", Silence).Rate(50).Frames(1, 20));
  }

  void ExpectTablesOfTheFormerTrial() {
    EXPECT_EQ(PointLabels(), (Labels{"A", "B"}));
    EXPECT_EQ(Entries(State().AnalogLabels), Labels{"FZ1"});
    EXPECT_EQ(Entries(State().AnalogDescriptions), Labels{"force"});
    EXPECT_EQ(State().TimeBetweenFrames, 0.02F);
  }
};

TEST_F(FailedOpenTest, AMissingFileClosesTheFormerAndLeavesItsFields) {
  EXPECT_EQ(OpenC3dFile(State(), "/nowhere/x.c3d", tests::NoEvents), OpenResult::FileNotOpened);
  EXPECT_FALSE(State().C3dFileNumber.IsOpen());
  EXPECT_EQ(State().OpenC3dFileSpec, "/nowhere/x.c3d");
  EXPECT_EQ(State().Header.PointFrameRate, 50.0F);
  ExpectTablesOfTheFormerTrial();
}

TEST_F(FailedOpenTest, ATruncatedHeaderLeavesTheFormerHeader) {
  EXPECT_EQ(tests::ErrorNumberOf([this] { opener_.Open(TrialBuilder().Build().TruncateTo(100)); }),
            62);
  EXPECT_FALSE(State().C3dFileNumber.IsOpen());
  EXPECT_EQ(State().Header.PointFrameRate, 50.0F);
  ExpectTablesOfTheFormerTrial();
}

TEST_F(FailedOpenTest, AWrongProcessorLeavesTheNewHeaderAndTheFormerDerivedValues) {
  const Trial mips =
      TrialBuilder().Rate(200).Build().SetByte(tests::kProcessorPosition, tests::kProcessorMips);
  EXPECT_EQ(opener_.Open(mips), OpenResult::ProcessorNotSupported);
  EXPECT_EQ(State().Header.PointFrameRate, 200.0F);
  EXPECT_EQ(State().ProcessorType, 84);
  EXPECT_EQ(State().PointFrameCount, 20);
  ExpectTablesOfTheFormerTrial();
}

TEST_F(FailedOpenTest, ACorruptScaleKeepsItsSignAndTheFormerStorage) {
  const auto builder =
      TrialBuilder().Frames(1, 7).StoredAs(sample::Storage::Single).DropParam("POINT", "SCALE");
  EXPECT_EQ(opener_.Open(builder), OpenResult::ScaleFactorCorrupt);
  EXPECT_EQ(State().Header.ScaleFactor, -0.1F);
  EXPECT_EQ(State().DataStoredAsIntegerOrSingle, 1);
  EXPECT_EQ(State().PointFrameCount, 7);
  ExpectTablesOfTheFormerTrial();
}

TEST_F(FailedOpenTest, NoPointLabelsTakesThePrefixAndLeavesTheFormerTables) {
  const Trial trial =
      Prefixed("S1:", "C", "D").Build().SetInteger(tests::header::kPointLabelCount, 0);
  EXPECT_EQ(opener_.Open(trial), OpenResult::NoPointLabels);
  EXPECT_FALSE(State().C3dFileNumber.IsOpen());
  EXPECT_EQ(State().LabelPrefix, "S1:");
  ExpectTablesOfTheFormerTrial();
}

TEST_F(FailedOpenTest, AGoodOpenBehindItIsComplete) {
  EXPECT_EQ(opener_.Open(TrialBuilder().Rate(0)), OpenResult::FrameRateNotSet);
  Given(WithLabels("C", "D"));
  EXPECT_EQ(PointLabels(), (Labels{"C", "D"}));
  EXPECT_TRUE(State().AnalogLabels.IsEmpty());
}

TEST(CloseC3dFile, MayBeCalledWithoutAnOpenFile) {
  FileState state;
  CloseC3dFile(state);
  CloseC3dFile(state);
  EXPECT_FALSE(state.C3dFileNumber.IsOpen());
}

}  // namespace
