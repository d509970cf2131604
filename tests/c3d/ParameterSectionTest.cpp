// SPDX-License-Identifier: GPL-3.0-or-later

#include <cstdint>
#include <filesystem>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "c3d/ParameterSection.h"
#include "tests/TestTrials.h"

namespace {

using namespace modVantrel;
using sample::SectionSpec;
using sample::TrialBuilder;
using tests::ErrorNumberOf;

using Integers = std::vector<std::int16_t>;

using tests::kInputPastEndOfFile;

// The parameter section of a trial, looked at without an open, so that damage to it can be seen.
class ParameterSectionTest : public testing::Test {
 protected:
  void Given(const sample::Trial& trial) {
    tests::WriteAnew(trial, path_);
    state_.C3dFileNumber.Open(path_.string());
    state_.ProcessorType = kProcessorIntel;
    state_.SeekPtrForFirstC3dParam = tests::kFirstRecordPosition;
  }
  void Given(const TrialBuilder& builder) { Given(builder.Build()); }

  GroupAndParam Find(const std::string& group, const std::string& param) const {
    return FindGroupAndParam(state_, group, param);
  }

  std::int16_t Integer(const std::string& group, const std::string& param) const {
    return Find(group, param).Param.IntegerValues.At(FirstElement());
  }

  std::vector<std::string> NamesInChain() const {
    std::vector<std::string> names;
    WalkParamChain(state_, [&](const ParamRecord& record, std::int32_t /*position*/) {
      if (record.Id != 0) names.push_back(record.Name);
      return false;
    });
    return names;
  }

  tests::TemporaryFolder folder_;
  std::filesystem::path path_ = folder_ / "trial.c3d";
  FileState state_;
};

// Two groups whose parameters have the same name.
TrialBuilder TwoGroups() {
  return TrialBuilder()
      .SetParam("FIRST", sample::IntegerParam("VALUE", 1))
      .SetParam("SECOND", sample::IntegerParam("VALUE", 2))
      .SetParam("SECOND", sample::IntegerParam("ONLY HERE", 3));
}

TEST_F(ParameterSectionTest, FindsNamesInAnyCaseWithBlanksAroundThem) {
  Given(TrialBuilder());
  const GroupAndParam found = Find("  point ", "labels");
  EXPECT_TRUE(found.BothFound());
  EXPECT_EQ(found.Group.Name, "POINT");
  EXPECT_EQ(found.Param.Name, "LABELS");
  EXPECT_EQ(found.Param.TextValues.At(FirstElement()), "LTOE");
  EXPECT_TRUE(Find("Point", " LaBeLs  ").BothFound());
}

TEST_F(ParameterSectionTest, MatchesWholeNamesOnly) {
  Given(TrialBuilder());
  for (const std::string group : {"", "POIN", "POINTS", "PO*NT", "POI NT"}) {
    EXPECT_FALSE(Find(group, "LABELS").GroupFound()) << group;
  }
  for (const std::string param : {"", "LABEL", "LABELS2"}) {
    EXPECT_TRUE(Find("POINT", param).GroupFound());
    EXPECT_FALSE(Find("POINT", param).BothFound()) << param;
  }
}

TEST_F(ParameterSectionTest, AMissingParameterGivesNoValues) {
  Given(TrialBuilder().SetParam("LAST", sample::IntegerParam("VALUE", 5)));
  const GroupAndParam found = Find("LAST", "OTHER");
  EXPECT_EQ(found.Param.Id, 0);
  EXPECT_EQ(ErrorNumberOf([&] { found.Param.IntegerValues.At(FirstElement()); }), 9);
}

TEST_F(ParameterSectionTest, AMissingGroupFindsNoParameterOfAnotherGroup) {
  Given(TwoGroups());
  const GroupAndParam found = Find("THIRD", "VALUE");
  EXPECT_EQ(found.Group.Id, 0);
  EXPECT_EQ(found.Param.Id, 0);
}

TEST_F(ParameterSectionTest, SkipsAParameterOfThatNameInAnotherGroup) {
  Given(TwoGroups());
  EXPECT_EQ(Integer("SECOND", "VALUE"), 2);
  EXPECT_EQ(Integer("FIRST", "VALUE"), 1);
  EXPECT_FALSE(Find("FIRST", "ONLY HERE").BothFound());
}

TEST_F(ParameterSectionTest, FindsParametersThatStandInFrontOfTheirGroups) {
  for (const auto order :
       {sample::RecordOrder::ParamsBeforeGroups, sample::RecordOrder::GroupsBeforeParams}) {
    Given(TwoGroups().Order(order));
    EXPECT_EQ(Integer("SECOND", "VALUE"), 2);
    EXPECT_EQ(Integer("SECOND", "ONLY HERE"), 3);
  }
}

TEST_F(ParameterSectionTest, TheFirstOfTwoGroupsOfOneNameWins) {
  Given(TrialBuilder().EditSection([](SectionSpec& section) {
    section.Groups.push_back({"TWICE", 20, "", false, {sample::IntegerParam("VALUE", 1)}});
    section.Groups.push_back(
        {"twice", 21, "", false, {sample::IntegerParam("VALUE", 2), sample::IntegerParam("B", 3)}});
  }));
  EXPECT_EQ(Integer("Twice", "VALUE"), 1);
  EXPECT_FALSE(Find("TWICE", "B").BothFound());
}

TEST_F(ParameterSectionTest, TheFirstOfTwoParametersOfOneNameWins) {
  Given(TrialBuilder().EditSection([](SectionSpec& section) {
    section.Group("TWICE").Params = {sample::IntegerParam("value", 1),
                                     sample::IntegerParam("VALUE", 2)};
  }));
  EXPECT_EQ(Integer("TWICE", "VALUE"), 1);
}

TEST_F(ParameterSectionTest, AGroupAndAParameterOfOneNameAreNotConfused) {
  Given(TrialBuilder()
            .Order(sample::RecordOrder::ParamsBeforeGroups)
            .SetParam("OTHER", sample::IntegerParam("SAME", 4))
            .SetParam("SAME", sample::IntegerParam("SAME", 5)));
  EXPECT_EQ(Integer("SAME", "SAME"), 5);
}

TEST_F(ParameterSectionTest, FindsALockedParameterOfALockedGroup) {
  Given(TrialBuilder().EditSection([](SectionSpec& section) {
    section.Group("LOCKED").Locked = true;
    auto param = sample::IntegerParam("VALUE", 6);
    param.Locked = true;
    section.SetParam("LOCKED", param);
  }));
  EXPECT_EQ(Integer("LOCKED", "VALUE"), 6);
  EXPECT_TRUE(Find("LOCKED", "VALUE").Group.Locked);
  EXPECT_TRUE(Find("LOCKED", "VALUE").Param.Locked);
}

TEST_F(ParameterSectionTest, FindsNamesOutsideAsciiTypedInEitherCase) {
  Given(TrialBuilder().SetParam("GR\xD6\xDF\x45", sample::IntegerParam("L\xE4NGE\xFF", 7)));
  EXPECT_EQ(Integer("gr\u00F6\u00DFe", "l\u00C4nge\u0178"), 7);
  EXPECT_EQ(Integer(" Gr\u00D6\u00DFE ", "L\u00E4NGE\u00FF"), 7);
  EXPECT_FALSE(Find("GRO\u00DFE", "L\u00E4NGE\u00FF").GroupFound());
}

TEST_F(ParameterSectionTest, AnIdByteOf128EndsTheWalkAtThatRecord) {
  Given(TrialBuilder().EditSection([](SectionSpec& section) {
    section.Groups.push_back({"BEFORE", 20, "", false, {}});
    section.Groups.push_back({"ENDS", 128, "", false, {}});
    section.Groups.push_back({"BEHIND", 21, "", false, {}});
  }));
  EXPECT_TRUE(Find("BEFORE", "").GroupFound());
  EXPECT_FALSE(Find("ENDS", "").GroupFound());
  EXPECT_FALSE(Find("BEHIND", "").GroupFound());
  EXPECT_EQ(NamesInChain().back(), "BEFORE");
}

TEST_F(ParameterSectionTest, BothEndsOfASectionAreFound) {
  for (const auto end : {sample::SectionEnd::ZeroOffset, sample::SectionEnd::ZeroId}) {
    Given(TwoGroups().End(end));
    EXPECT_EQ(NamesInChain().back(), "ONLY HERE");
    EXPECT_EQ(Integer("SECOND", "ONLY HERE"), 3);
  }
}

TEST_F(ParameterSectionTest, ASectionThatBeginsWithItsEndHoldsNothing) {
  Given(TrialBuilder().Build().SetByte(tests::kFirstRecordPosition + 1, 0));
  EXPECT_TRUE(NamesInChain().empty());
  EXPECT_FALSE(Find("POINT", "LABELS").GroupFound());
}

TEST_F(ParameterSectionTest, AnOffsetBelow2EndsTheWalkBehindItsRecord) {
  for (const std::int16_t offset : Integers{0, 1, -1, -5, -32768}) {
    sample::Trial trial = TwoGroups().Build();
    Given(trial.SetOffset(trial.GroupPosition("FIRST"), offset));
    EXPECT_EQ(NamesInChain().back(), "FIRST") << offset;
    EXPECT_FALSE(Find("FIRST", "VALUE").BothFound());
    EXPECT_FALSE(Find("SECOND", "VALUE").GroupFound());
  }
}

TEST_F(ParameterSectionTest, AnOffsetPastTheEndOfTheFileIsError62) {
  sample::Trial trial = TwoGroups().Build();
  Given(trial.SetOffset(trial.GroupPosition("FIRST"), 32767));
  EXPECT_EQ(ErrorNumberOf([&] { Find("SECOND", "VALUE"); }), kInputPastEndOfFile);
  EXPECT_TRUE(Find("POINT", "SCALE").BothFound()) << "what stands in front of it is found";
}

TEST_F(ParameterSectionTest, AWalkAlwaysMovesForwardWhateverTheOffset) {
  const sample::Trial good = TwoGroups().Build();
  const auto most = static_cast<std::int32_t>(good.Size());
  for (std::int32_t offset = -700; offset <= 700; ++offset) {
    sample::Trial trial = good;
    Given(trial.SetOffset(trial.GroupPosition("SECOND"), static_cast<std::int16_t>(offset)));
    std::int32_t previous = 0;
    const int error = ErrorNumberOf([&] {
      WalkParamChain(state_, [&](const ParamRecord& /*record*/, std::int32_t position) {
        EXPECT_GT(position, previous);
        EXPECT_LE(position, most);
        previous = position;
        return false;
      });
    });
    EXPECT_TRUE(error == 0 || error == 9 || error == kInputPastEndOfFile) << offset;
  }
}

TEST_F(ParameterSectionTest, TheSectionHeaderIsReadAfreshEachTime) {
  const sample::Trial trial = TrialBuilder().Build();
  Given(trial);
  state_.Header.ParamBlockPointer = 2;
  EXPECT_EQ(ReadParamBlockHeader(state_).RecordID, 80);
  sample::Trial(trial).SetByte(tests::kSectionPosition + 1, 81).WriteTo(path_);
  EXPECT_EQ(ReadParamBlockHeader(state_).RecordID, 81);
}

}  // namespace
