// SPDX-License-Identifier: GPL-3.0-or-later

#include <cstdint>
#include <functional>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "reports/ParameterReport.h"
#include "tests/TestTrials.h"

namespace {

using modAllPurpose::ReportOutput;
using modAllPurpose::ReportResult;
using modVantrel::FileState;
using sample::ParamSpec;
using sample::SectionSpec;
using sample::TrialBuilder;

using Lines = std::vector<std::string>;
using Bytes = std::vector<std::uint8_t>;
using Integers = std::vector<std::int16_t>;
using Singles = std::vector<float>;
using Texts = std::vector<std::string>;

ParamSpec Param(Bytes dimensions, ParamSpec::Data values) {
  return {"P", std::move(dimensions), std::move(values), "", false, {}};
}

// A builder whose section ends with the group G and the parameter `param`.
TrialBuilder With(const ParamSpec& param) { return TrialBuilder().SetParam("G", param); }

class ParameterReportTest : public testing::Test {
 protected:
  void Given(const sample::Trial& trial) {
    ASSERT_EQ(opener_.Open(trial), modVantrel::OpenResult::Success);
  }
  void Given(const TrialBuilder& builder) { Given(builder.Build()); }

  FileState& State() { return opener_.State(); }

  std::string AllGroups() {
    return tests::TextOf([this](auto& output) { reports::ShowAllGroups(State(), output); });
  }
  std::string AllParams() {
    return tests::TextOf(
        [this](auto& output) { reports::ShowAllGroupsAndAllParams(State(), output); });
  }
  // The report of a group, or, where it was rejected, the text in its place.
  std::string Group(const std::string& name) {
    return Answer([&](ReportOutput& output) {
      return reports::ShowMatchingGroupAndAllParams(State(), name, output);
    });
  }
  std::string GroupAndParam(const std::string& group, const std::string& param) {
    return Answer([&](ReportOutput& output) {
      return reports::ShowMatchingGroupAndMatchingParam(State(), group, param, output);
    });
  }

  // The lines of the parameter P of group G below its name.
  Lines Elements() {
    Lines lines = tests::LinesOf(GroupAndParam("G", "P"));
    EXPECT_GE(lines.size(), 2U);
    EXPECT_EQ(lines.at(0), "G");
    EXPECT_EQ(lines.at(1), "  P");
    lines.erase(lines.begin(), lines.begin() + 2);
    return lines;
  }

  tests::TrialOpener opener_;

 private:
  static std::string Answer(const std::function<ReportResult(ReportOutput&)>& report) {
    modAllPurpose::TextReport output;
    const ReportResult result = report(output);
    EXPECT_EQ(output.Begun(), !result.IsRejected());
    return result.IsRejected() ? std::string(result.Text()) : output.Text();
  }
};

TEST_F(ParameterReportTest, AScalarOfEachTypePrintsOneLineWithAllItsIndices) {
  Given(With(Param({}, Integers{-12})));
  EXPECT_EQ(Elements(), Lines{"    int(1,1,1,1,1,1,1)            -12"});
  Given(With(Param({}, Bytes{200})));
  EXPECT_EQ(Elements(), Lines{"    byt(1,1,1,1,1,1,1)            200"});
  Given(With(Param({}, Singles{1.0F / 120.0F})));
  EXPECT_EQ(Elements(), Lines{"    sng(1,1,1,1,1,1,1)            0.008333334"});
  Given(With(Param({}, Texts{"Y"})));
  EXPECT_EQ(Elements(), Lines{"    txt(1,1,1,1,1,1)              'Y'"});
}

TEST_F(ParameterReportTest, ATextParameterOf4By2PrintsTwoElements) {
  Given(With(Param({4, 2}, Texts{"LASI", "RASI"})));
  EXPECT_EQ(Elements(), (Lines{"    txt(1,1,1,1,1,1)              'LASI'",
                               "    txt(2,1,1,1,1,1)              'RASI'"}));
}

TEST_F(ParameterReportTest, TextsArePrintedTrimmedOfBlanksOnly) {
  Given(With(Param({5, 3}, Texts{" a b", "", "\tc"})));
  EXPECT_EQ(Elements(), (Lines{"    txt(1,1,1,1,1,1)              'a b'",
                               "    txt(2,1,1,1,1,1)              ''",
                               "    txt(3,1,1,1,1,1)              '\tc'"}));
}

TEST_F(ParameterReportTest, TextsOutsideAsciiAreUtf8) {
  Given(With(Param({3, 1}, Texts{"\xB0\x80'"})));
  EXPECT_EQ(Elements(), Lines{"    txt(1,1,1,1,1,1)              '\u00B0\u20AC''"});
}

TEST_F(ParameterReportTest, TheLastIndexRunsFastestWhereTheFileRunsTheFirstFastest) {
  Given(With(Param({2, 3}, Integers{11, 21, 12, 22, 13, 23})));
  EXPECT_EQ(
      Elements(),
      (Lines{"    int(1,1,1,1,1,1,1)            11", "    int(1,2,1,1,1,1,1)            12",
             "    int(1,3,1,1,1,1,1)            13", "    int(2,1,1,1,1,1,1)            21",
             "    int(2,2,1,1,1,1,1)            22", "    int(2,3,1,1,1,1,1)            23"}));
}

TEST_F(ParameterReportTest, TextsFollowTheSameOdometer) {
  Given(With(Param({2, 2, 2}, Texts{"11", "21", "12", "22"})));
  EXPECT_EQ(
      Elements(),
      (Lines{"    txt(1,1,1,1,1,1)              '11'", "    txt(1,2,1,1,1,1)              '12'",
             "    txt(2,1,1,1,1,1)              '21'", "    txt(2,2,1,1,1,1)              '22'"}));
}

// Every parameter of `count` dimensions of size 2, its values numbered in file order: the element
// (i1, ..., in) holds the sum of (ik - 1) * 2^(k - 1).
void ExpectOdometer(const Lines& lines, const std::string& type, std::size_t count) {
  ASSERT_EQ(lines.size(), std::size_t{1} << count) << type << " of " << count;
  for (std::size_t n = 0; n < lines.size(); ++n) {
    std::string tag(type);
    tag += '(';
    std::size_t value = 0;
    for (std::size_t k = 0; k < 7; ++k) {
      const std::size_t bit = k < count ? (n >> (count - 1 - k)) & 1U : 0;
      value += bit << k;
      if (k > 0) tag += ',';
      tag += std::to_string(bit + 1);
    }
    tag += ')';
    tag.resize(30, ' ');
    tag += std::to_string(value);
    EXPECT_EQ(lines[n], "    " + tag);
  }
}

TEST_F(ParameterReportTest, NumbersOf0To7DimensionsArePrintedInOdometerOrder) {
  for (std::size_t count = 0; count <= 7; ++count) {
    const Bytes dimensions(count, 2);
    Bytes bytes;
    for (std::size_t i = 0; i < (std::size_t{1} << count); ++i) {
      bytes.push_back(static_cast<std::uint8_t>(i));
    }
    Given(With(Param(dimensions, bytes)));
    ExpectOdometer(Elements(), "byt", count);
    Given(With(Param(dimensions, Integers(bytes.begin(), bytes.end()))));
    ExpectOdometer(Elements(), "int", count);
    Given(With(Param(dimensions, Singles(bytes.begin(), bytes.end()))));
    ExpectOdometer(Elements(), "sng", count);
  }
}

TEST_F(ParameterReportTest, TextsOf7DimensionsHaveSixIndices) {
  Texts values;
  for (int i = 0; i < 64; ++i) values.push_back(std::to_string(i));
  Given(With(Param({2, 2, 2, 2, 2, 2, 2}, values)));
  const Lines lines = Elements();
  ASSERT_EQ(lines.size(), 64U);
  EXPECT_EQ(lines[0], "    txt(1,1,1,1,1,1)              '0'");
  EXPECT_EQ(lines[1], "    txt(1,1,1,1,1,2)              '32'");
  EXPECT_EQ(lines[32], "    txt(2,1,1,1,1,1)              '1'");
  EXPECT_EQ(lines[63], "    txt(2,2,2,2,2,2)              '63'");
}

TEST_F(ParameterReportTest, AnIndexOfThreeDigitsLeavesTheColumnWhereItIs) {
  Given(With(Param({100, 100}, Bytes(10000, 7))));
  EXPECT_EQ(Elements().back(), "    byt(100,100,1,1,1,1,1)        7");
}

// No file can hold the elements that such indices need, so the tag is made by itself.
TEST(ElementTag, IsPaddedOrCutTo30Characters) {
  const std::vector<std::int32_t> six = {255, 255, 255, 255, 255, 255};
  EXPECT_EQ(reports::ElementTag("txt", six), "txt(255,255,255,255,255,255)  ");
  const std::vector<std::int32_t> seven = {255, 255, 255, 255, 255, 255, 255};
  EXPECT_EQ(reports::ElementTag("int", seven), "int(255,255,255,255,255,255,25");
}

TEST_F(ParameterReportTest, ADimensionOf0PrintsTheNameOnly) {
  Given(With(Param({0}, Integers{})));
  EXPECT_EQ(Elements(), Lines{});
  Given(With(Param({4, 0}, Texts{})));
  EXPECT_EQ(Elements(), Lines{});
}

TEST_F(ParameterReportTest, AnUnknownDataTypePrintsTheNameOnly) {
  for (const std::uint8_t type : Bytes{0, 3, 5, 127, 128, 254}) {
    ParamSpec param = Param({2}, std::monostate{});
    param.DataType = type;
    Given(With(param).SetParam("G", sample::IntegerParam("NEXT", 9)));
    EXPECT_EQ(Elements(), Lines{}) << int{type};
    EXPECT_EQ(tests::LinesOf(Group("G")),
              (Lines{"G", "  P", "  NEXT", "    int(1,1,1,1,1,1,1)            9"}));
  }
}

TEST_F(ParameterReportTest, LockedRecordsPrintLikeOthers) {
  ParamSpec param = sample::IntegerParam("P", 1);
  param.Locked = true;
  Given(With(param).EditSection([](SectionSpec& section) { section.Group("G").Locked = true; }));
  EXPECT_EQ(Group("G"), "G\n  P\n    int(1,1,1,1,1,1,1)            1\n");
}

TEST_F(ParameterReportTest, DescriptionsAreReadOverAndNotPrinted) {
  ParamSpec param = sample::IntegerParam("P", 1);
  param.Description = "of the parameter";
  const auto withGroupDescription = [&param](std::size_t size) {
    return With(param)
        .EditSection([size](SectionSpec& section) {
          section.Group("G").Description = std::string(size, 'd');
        })
        .SetParam("LAST", sample::IntegerParam("X", 2));
  };
  for (const std::size_t size : {0U, 1U, 127U, 128U, 255U}) {  // 128 is stored as 0x80
    Given(withGroupDescription(size));
    EXPECT_EQ(Group("G"), "G\n  P\n    int(1,1,1,1,1,1,1)            1\n") << size;
    EXPECT_EQ(Group("LAST"), "LAST\n  X\n    int(1,1,1,1,1,1,1)            2\n") << size;
  }
}

// Groups A (one parameter), EMPTY (none) and B (one), and nothing else but what an open needs.
TrialBuilder ThreeGroups() {
  return TrialBuilder()
      .DropGroup("ANALOG")
      .SetParam("A", sample::IntegerParam("SAME", 1))
      .EditSection([](SectionSpec& section) { section.Group("EMPTY"); })
      .SetParam("B", sample::IntegerParam("SAME", 2));
}

TEST_F(ParameterReportTest, AllGroupsEndWithThreeEmptyLines) {
  Given(ThreeGroups());
  EXPECT_EQ(AllGroups(), "POINT\nA\nEMPTY\nB\n\n\n\n");
}

TEST_F(ParameterReportTest, AllGroupsAndParamsEndWithOneEmptyLine) {
  Given(ThreeGroups());
  EXPECT_EQ(AllParams(),
            "POINT\n"
            "  USED\n"
            "    int(1,1,1,1,1,1,1)            1\n"
            "  SCALE\n"
            "    sng(1,1,1,1,1,1,1)            0.1\n"
            "  RATE\n"
            "    sng(1,1,1,1,1,1,1)            100\n"
            "  FRAMES\n"
            "    int(1,1,1,1,1,1,1)            10\n"
            "  LABELS\n"
            "    txt(1,1,1,1,1,1)              'LTOE'\n"
            "A\n"
            "  SAME\n"
            "    int(1,1,1,1,1,1,1)            1\n"
            "EMPTY\n"
            "B\n"
            "  SAME\n"
            "    int(1,1,1,1,1,1,1)            2\n"
            "\n");
}

TEST_F(ParameterReportTest, AMatchingGroupEndsWithoutAnEmptyLine) {
  Given(ThreeGroups());
  EXPECT_EQ(Group("B"), "B\n  SAME\n    int(1,1,1,1,1,1,1)            2\n");
  EXPECT_EQ(Group("EMPTY"), "EMPTY\n");
}

TEST_F(ParameterReportTest, AMatchingParameterEndsWithoutAnEmptyLine) {
  Given(ThreeGroups());
  EXPECT_EQ(GroupAndParam("A", "SAME"), "A\n  SAME\n    int(1,1,1,1,1,1,1)            1\n");
}

TEST_F(ParameterReportTest, ParametersInFrontOfTheirGroupsAreGathered) {
  Given(ThreeGroups());
  const std::string expected = AllParams();
  for (const auto order :
       {sample::RecordOrder::ParamsBeforeGroups, sample::RecordOrder::GroupsBeforeParams}) {
    Given(ThreeGroups().Order(order));
    EXPECT_EQ(AllParams(), expected);
    EXPECT_EQ(AllGroups(), "POINT\nA\nEMPTY\nB\n\n\n\n");
    EXPECT_EQ(GroupAndParam("B", "SAME"), "B\n  SAME\n    int(1,1,1,1,1,1,1)            2\n");
  }
}

TEST_F(ParameterReportTest, TheTypedNamesMatchInAnyCaseWithBlanksAround) {
  Given(ThreeGroups());
  EXPECT_EQ(tests::LinesOf(Group(" point ")).front(), "POINT");
  EXPECT_EQ(tests::LinesOf(GroupAndParam(" a", "same ")),
            (Lines{"A", "  SAME", "    int(1,1,1,1,1,1,1)            1"}));
}

TEST_F(ParameterReportTest, NamesOutsideAsciiMatchInAnyCase) {
  Given(TrialBuilder().SetParam("Gel\xE4nde", sample::IntegerParam("H\xF6he", 3)));
  const std::string expected = "Gel\u00E4nde\n  H\u00F6he\n    int(1,1,1,1,1,1,1)            3\n";
  EXPECT_EQ(Group("GEL\u00C4NDE"), expected);
  EXPECT_EQ(GroupAndParam("gel\u00E4nde", "H\u00D6HE"), expected);
}

TEST_F(ParameterReportTest, AMissingGroupIsRejected) {
  Given(ThreeGroups());
  for (const std::string name : {"", "C", "POIN", "SAME"}) {
    EXPECT_EQ(Group(name), "group not found");
    EXPECT_EQ(GroupAndParam(name, "SAME"), "neither group nor param found");
    EXPECT_EQ(GroupAndParam(name, "nowhere"), "neither group nor param found");
  }
}

TEST_F(ParameterReportTest, AMissingParameterPrintsTheGroupAndSaysSo) {
  Given(ThreeGroups());
  EXPECT_EQ(GroupAndParam("POINT", "SAME"), "POINT\n\nparam not found\n");
  EXPECT_EQ(GroupAndParam("EMPTY", ""), "EMPTY\n\nparam not found\n");
}

TEST_F(ParameterReportTest, OfTwoGroupsOfOneNameTheFirstMatchesAndBothAreListed) {
  Given(ThreeGroups().EditSection([](SectionSpec& section) {
    section.Groups.push_back({"a", 30, "", false, {sample::IntegerParam("OTHER", 8)}});
  }));
  EXPECT_EQ(Group("A"), "A\n  SAME\n    int(1,1,1,1,1,1,1)            1\n");
  EXPECT_EQ(GroupAndParam("A", "OTHER"), "A\n\nparam not found\n");
  EXPECT_TRUE(AllParams().ends_with("a\n  OTHER\n    int(1,1,1,1,1,1,1)            8\n\n"));
}

TEST_F(ParameterReportTest, GroupsThatShareANumberShareTheirParameters) {
  Given(ThreeGroups().EditSection([](SectionSpec& section) {
    section.Groups.push_back({"ALIAS", section.Group("B").Number, "", false, {}});
  }));
  EXPECT_EQ(Group("ALIAS"), "ALIAS\n  SAME\n    int(1,1,1,1,1,1,1)            2\n");
}

TEST_F(ParameterReportTest, AnIdByteOf128EndsEveryListing) {
  Given(ThreeGroups().EditSection([](SectionSpec& section) {
    section.Groups.push_back({"ENDS", 128, "", false, {}});
    section.Groups.push_back({"BEHIND", 40, "", false, {}});
  }));
  EXPECT_EQ(AllGroups(), "POINT\nA\nEMPTY\nB\n\n\n\n");
  EXPECT_EQ(Group("BEHIND"), "group not found");
}

TEST_F(ParameterReportTest, AReportCutShortKeepsWhatItHadWritten) {
  const sample::Trial trial = ThreeGroups().Build();
  Given(trial);
  sample::Trial damaged = trial;
  damaged.SetOffset(damaged.GroupPosition("EMPTY"), 32767).WriteTo(opener_.File());
  State().C3dFileNumber.ForgetBuffer();
  modAllPurpose::TextReport output;
  EXPECT_EQ(tests::ErrorNumberOf([&] { reports::ShowAllGroups(State(), output); }), 62);
  EXPECT_EQ(output.Text(), "POINT\nA\n");
}

}  // namespace
