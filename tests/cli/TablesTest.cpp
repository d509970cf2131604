// SPDX-License-Identifier: GPL-3.0-or-later

#include <array>
#include <cmath>
#include <cstdint>
#include <filesystem>
#include <rapidjson/document.h>
#include <string>
#include <vector>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "reports/ReportList.h"
#include "tests/GaitTrials.h"
#include "tests/cli/ToolInside.h"

namespace {

using testing::HasSubstr;
using testing::StartsWith;
using tests::RunInside;
using tests::ToolResult;

rapidjson::Document ParsedJson(const std::string& text) {
  rapidjson::Document document;
  document.Parse(text.c_str());
  EXPECT_FALSE(document.HasParseError()) << text;
  return document;
}

class TablesTest : public testing::Test {
 protected:
  // Writes a trial of that name and returns its path.
  std::string Given(const std::string& name, const sample::TrialBuilder& builder) {
    return Given(name, builder.Build());
  }

  std::string Given(const std::string& name, const sample::Trial& trial) {
    trial.WriteTo(folder_ / name);
    return (folder_ / name).string();
  }

  std::string GivenNoTrial(const std::string& name) {
    sample::Trial trial = sample::TrialBuilder().Build();
    trial.SetByte(2, 0).WriteTo(folder_ / name);
    return (folder_ / name).string();
  }

 private:
  tests::TemporaryFolder folder_;
};

sample::TrialBuilder Toes() {
  sample::TrialBuilder builder;
  builder.StoredAs(sample::Storage::Single).Frames(5, 6).Rate(100);
  builder.AddPoint("LTOE", [](std::int32_t frame) {
    return std::array<float, 3>{static_cast<float>(frame), 0.5F, -1};
  });
  builder.AddPoint("RTOE", [](std::int32_t) { return std::array<float, 3>{std::nanf(""), 0, 0}; });
  return builder;
}

// Two frames of two samples: Fz1 counts up from 1, Fz2 down from -1.
sample::TrialBuilder TwoChannels() {
  sample::TrialBuilder builder = Toes();
  builder.SamplesPerFrame(2);
  builder.AddAnalog("Fz1", "Up", [](std::int32_t sample) { return static_cast<float>(sample); });
  builder.AddAnalog("Fz2", "Down", [](std::int32_t sample) { return static_cast<float>(-sample); });
  return builder;
}

// One left stride, both toes and a channel.
sample::TrialBuilder WalkWithChannels() {
  sample::TrialBuilder builder = tests::WholeFrameTrial();
  builder.AddPoint("LTOE", tests::Moving({}, {20, 0, 0}))
      .AddPoint("RTOE", tests::Standing(840, 100, 0))
      .AddAnalog("Fz1", "Force", [](std::int32_t) { return 1.0F; });
  return builder;
}

TEST_F(TablesTest, PointHasTheFramesOfEachLabelInTheOrderAsked) {
  const std::string file = Given("walk.c3d", Toes());
  const ToolResult run =
      RunInside({"--format", "csv", "--label", "rtoe", "--label", "LTOE", "point", file});
  EXPECT_EQ(run.Status, 0) << run.Err;
  EXPECT_EQ(run.Out, "file,label,frame,time,x,y,z,residual\n" + file + ",RTOE,5,0.04,,0,0,0\n" +
                         file + ",RTOE,6,0.05,,0,0,0\n" + file + ",LTOE,5,0.04,1,0.5,-1,0\n" +
                         file + ",LTOE,6,0.05,2,0.5,-1,0\n");
}

TEST_F(TablesTest, MissingValueIsNullInJson) {
  const auto document = ParsedJson(
      RunInside({"--format", "json", "--label", "RTOE", "point", Given("w.c3d", Toes())}).Out);
  ASSERT_EQ(document.Size(), 2U);
  EXPECT_TRUE(document[0]["x"].IsNull());
  EXPECT_EQ(document[0]["frame"].GetInt(), 5);
}

TEST_F(TablesTest, LabelThatATrialLacksIsComplainedOfAndTheOthersStand) {
  const std::string file = Given("walk.c3d", Toes());
  const ToolResult run =
      RunInside({"--format", "csv", "--label", "LHEE", "--label", "LTOE", "point", file});
  EXPECT_EQ(run.Status, 1);
  EXPECT_EQ(run.Err, "vantrel-report: " + file + ": point label not found: LHEE\n");
  EXPECT_THAT(run.Out, HasSubstr(",LTOE,5,"));
}

TEST_F(TablesTest, AllLabelsTakesRepeatedAndEmptyOnesByTheirPlace) {
  sample::TrialBuilder builder = Toes();
  builder.AddPoint("LTOE", [](std::int32_t) { return std::array<float, 3>{7, 7, 7}; });
  builder.AddPoint("", [](std::int32_t) { return std::array<float, 3>{8, 8, 8}; });
  const auto document = ParsedJson(
      RunInside({"--format", "json", "--all-labels", "point", Given("walk.c3d", builder)}).Out);
  ASSERT_EQ(document.Size(), 8U);
  EXPECT_STREQ(document[4]["label"].GetString(), "LTOE");
  EXPECT_EQ(document[4]["x"].GetDouble(), 7);
  EXPECT_STREQ(document[6]["label"].GetString(), "");
  EXPECT_EQ(document[6]["x"].GetDouble(), 8);
}

TEST_F(TablesTest, SeveralFilesAreOneTable) {
  const std::string first = Given("a.c3d", Toes());
  const std::string second = Given("b.c3d", Toes());
  const ToolResult run = RunInside({"--format", "csv", "header", first, second});
  EXPECT_THAT(run.Out, StartsWith("file,field,value\n" + first + ",ParamBlockPointer,2\n"));
  EXPECT_THAT(run.Out, HasSubstr("\n" + second + ",ParamBlockPointer,2\n"));
  EXPECT_EQ(run.Out.find("==>"), std::string::npos);
}

TEST_F(TablesTest, StaysWholeWhereAFileFails) {
  const std::string bad = GivenNoTrial("bad.c3d");
  const std::string good = Given("good.c3d", Toes());
  const ToolResult run = RunInside({"--format", "json", "header", bad, good, bad});
  EXPECT_EQ(run.Status, 1);
  EXPECT_EQ(ParsedJson(run.Out).Size(), 24U);
  EXPECT_THAT(run.Err, HasSubstr(bad + ": Not a valid C3D file."));
}

TEST_F(TablesTest, IsAnEmptyTableWhereNothingCame) {
  const std::string bad = GivenNoTrial("bad.c3d");
  EXPECT_EQ(RunInside({"--format", "csv", "strides", bad}).Out,
            "file,side,number,start,opposite_foot_off,opposite_foot_strike,foot_off,stop\n");
  EXPECT_EQ(ParsedJson(RunInside({"--format", "json", "strides", bad}).Out).Size(), 0U);
}

TEST_F(TablesTest, EndsAsItMustWhereAReportEndsInAnError) {
  const std::string file = Given("walk.c3d", Toes());
  std::filesystem::resize_file(file, std::filesystem::file_size(file) - 600);
  const ToolResult run = RunInside({"--format", "json", "--label", "LTOE", "point", file});
  EXPECT_EQ(run.Status, 1);
  EXPECT_EQ(ParsedJson(run.Out).Size(), 0U);
  EXPECT_THAT(run.Err, HasSubstr("Run-time error '62'"));
}

TEST_F(TablesTest, LabelThatATrialLacksIsNamedBeforeTheErrorThatEndsItsRows) {
  const std::string file = Given("walk.c3d", WalkWithChannels());
  std::filesystem::resize_file(file, std::filesystem::file_size(file) - 600);
  for (const auto& [report, label, kind] :
       {std::array{"point", "LTOE", "point"}, std::array{"normalized", "LTOE", "point"},
        std::array{"analog", "Fz1", "analog"}}) {
    const ToolResult run =
        RunInside({"--format", "csv", "--label", label, "--label", "LHEE", report, file});
    EXPECT_EQ(run.Status, 1) << report;
    EXPECT_EQ(run.Err, "vantrel-report: " + file + ": " + kind +
                           " label not found: LHEE\nvantrel-report: " + file +
                           ": Run-time error '62': Input past end of file\n")
        << report;
  }
}

TEST_F(TablesTest, AnalogHasTheSamplesOfEachLabelInTheOrderAsked) {
  const std::string file = Given("walk.c3d", TwoChannels());
  const ToolResult run =
      RunInside({"--format", "csv", "--label", "fz2", "--label", "Fz1", "analog", file});
  EXPECT_EQ(run.Status, 0) << run.Err;
  EXPECT_EQ(run.Out, "file,label,frame,sample,time,value\n" + file + ",Fz2,5,1,0.04,-1\n" + file +
                         ",Fz2,5,2,0.04,-2\n" + file + ",Fz2,6,3,0.05,-3\n" + file +
                         ",Fz2,6,4,0.05,-4\n" + file + ",Fz1,5,1,0.04,1\n" + file +
                         ",Fz1,5,2,0.04,2\n" + file + ",Fz1,6,3,0.05,3\n" + file +
                         ",Fz1,6,4,0.05,4\n");
}

TEST_F(TablesTest, AnalogLabelThatATrialLacksIsComplainedOfAndTheOthersStand) {
  const std::string file = Given("walk.c3d", TwoChannels());
  const ToolResult run =
      RunInside({"--format", "csv", "--label", "LTOE", "--label", "Fz1", "analog", file});
  EXPECT_EQ(run.Status, 1);
  EXPECT_EQ(run.Err, "vantrel-report: " + file + ": analog label not found: LTOE\n");
  EXPECT_THAT(run.Out, HasSubstr(",Fz1,6,4,0.05,4\n"));
}

TEST_F(TablesTest, AllLabelsOfAnalogTakesRepeatedAndEmptyOnesByTheirPlace) {
  sample::TrialBuilder builder = TwoChannels();
  builder.AddAnalog("Fz1", "Again", [](std::int32_t) { return 7.0F; });
  builder.AddAnalog("", "None", [](std::int32_t) { return 8.0F; });
  const auto document = ParsedJson(
      RunInside({"--format", "json", "--all-labels", "analog", Given("walk.c3d", builder)}).Out);
  ASSERT_EQ(document.Size(), 16U);
  EXPECT_STREQ(document[4]["label"].GetString(), "Fz2");
  EXPECT_STREQ(document[8]["label"].GetString(), "Fz1");
  EXPECT_EQ(document[8]["value"].GetDouble(), 7);
  EXPECT_STREQ(document[12]["label"].GetString(), "");
  EXPECT_EQ(document[15]["value"].GetDouble(), 8);
}

// Each label has 51 rows for the one stride.
TEST_F(TablesTest, NormalizedHasTheCurvesOfEachLabelInTheOrderAsked) {
  const std::string file = Given("walk.c3d", WalkWithChannels());
  const auto document = ParsedJson(
      RunInside({"--format", "json", "--label", "rtoe", "--label", "LTOE", "normalized", file})
          .Out);
  ASSERT_EQ(document.Size(), 102U);
  EXPECT_STREQ(document[0]["label"].GetString(), "RTOE");
  EXPECT_EQ(document[0]["x"].GetDouble(), 840);
  EXPECT_STREQ(document[51]["label"].GetString(), "LTOE");
  EXPECT_STREQ(document[51]["side"].GetString(), "Left");
  EXPECT_EQ(document[101]["percent"].GetInt(), 100);
}

TEST_F(TablesTest, AllLabelsOfNormalizedTakesRepeatedAndEmptyOnesByTheirPlace) {
  sample::TrialBuilder builder = WalkWithChannels();
  builder.AddPoint("LTOE", tests::Standing(7, 7, 7)).AddPoint("", tests::Standing(8, 8, 8));
  const auto document = ParsedJson(
      RunInside({"--format", "json", "--all-labels", "normalized", Given("walk.c3d", builder)})
          .Out);
  ASSERT_EQ(document.Size(), 204U);
  EXPECT_STREQ(document[102]["label"].GetString(), "LTOE");
  EXPECT_EQ(document[102]["x"].GetDouble(), 7);
  EXPECT_STREQ(document[153]["label"].GetString(), "");
  EXPECT_EQ(document[203]["x"].GetDouble(), 8);
}

TEST_F(TablesTest, ChannelAboveAFractionalCountIsAnIndexErrorBehindTheRowsOfTheOthers) {
  // 7 values in 4 samples: 1.75 channels, so 2 labels but data of channel 1 only.
  sample::TrialBuilder builder = Toes();
  for (int i = 1; i <= 7; ++i) {
    builder.AddAnalog("C" + std::to_string(i), "", [](std::int32_t) { return 0.5F; });
  }
  const std::string file = Given("walk.c3d", builder.Build().SetInteger(19, 4));
  const std::string error =
      "vantrel-report: " + file + ": Run-time error '9': Subscript out of range";
  const ToolResult one = RunInside({"--format", "csv", "--label", "C2", "analog", file});
  EXPECT_EQ(one.Status, 1);
  EXPECT_EQ(one.Out, "file,label,frame,sample,time,value\n");
  EXPECT_THAT(one.Err, StartsWith(error));
  const ToolResult all = RunInside({"--format", "json", "--all-labels", "analog", file});
  EXPECT_EQ(all.Status, 1);
  EXPECT_EQ(ParsedJson(all.Out).Size(), 8U) << "two frames of four samples";
  EXPECT_THAT(all.Err, StartsWith(error));
}

TEST_F(TablesTest, GroupAndParamLimitTheParameters) {
  sample::TrialBuilder builder = Toes();
  builder.SetParam("G", {"P", {2, 2}, std::vector<std::int16_t>{1, 2, 3, 4}, "", false, {}});
  const std::string file = Given("walk.c3d", builder);
  EXPECT_EQ(RunInside({"--format", "csv", "--group", "g", "--param", "p", "parameters", file}).Out,
            "file,group,parameter,type,dimensions,index,value\n" + file + ",G,P,integer,2x2,1,1\n" +
                file + ",G,P,integer,2x2,2,2\n" + file + ",G,P,integer,2x2,3,3\n" + file +
                ",G,P,integer,2x2,4,4\n");
  const ToolResult missing = RunInside({"--format", "csv", "--group", "H", "parameters", file});
  EXPECT_EQ(missing.Status, 1);
  EXPECT_EQ(missing.Err, "vantrel-report: " + file + ": group not found\n");
}

TEST_F(TablesTest, TextWithCommasQuotesAndNewlinesComesBackWhole) {
  sample::TrialBuilder builder = Toes();
  const std::string text = "a,\"b\"\nc";
  builder.SetParam("G", {"P",
                         {static_cast<std::uint8_t>(text.size())},
                         std::vector<std::string>{text},
                         "",
                         false,
                         {}});
  const std::string file = Given("walk.c3d", builder);
  const std::vector<std::string> options = {"--group", "G", "--param", "P", "parameters", file};
  std::vector<std::string> csv = {"--format", "csv"};
  csv.insert(csv.end(), options.begin(), options.end());
  EXPECT_THAT(RunInside(csv).Out, HasSubstr(",character,,1,\"a,\"\"b\"\"\nc\"\n"));
  std::vector<std::string> json = {"--format", "json"};
  json.insert(json.end(), options.begin(), options.end());
  EXPECT_EQ(ParsedJson(RunInside(json).Out)[0]["value"].GetString(), text);
}

TEST_F(TablesTest, LabelsBeyondThe255thAreFoundInTablesAndWhereTextsAreToldTo) {
  sample::TrialBuilder builder;
  builder.StoredAs(sample::Storage::Single).Frames(1, 1);
  std::vector<std::string> first;
  for (int i = 1; i <= 256; ++i) {
    const std::string label = "P" + std::to_string(i);
    builder.AddPoint(label, [](std::int32_t) { return std::array<float, 3>{1, 2, 3}; });
    if (i <= 255) first.push_back(label + std::string(4 - std::to_string(i).size(), ' '));
  }
  builder.SetParam("POINT", {"LABELS", {5, 255}, first, "", false, {}});
  builder.SetParam("POINT", {"LABELS2", {5, 1}, std::vector<std::string>{"LTOE "}, "", false, {}});
  const std::string file = Given("many.c3d", builder);
  EXPECT_THAT(RunInside({"--format", "csv", "--label", "ltoe", "point", file}).Out,
              HasSubstr(",LTOE,1,0,1,2,3,0\n"));
  EXPECT_EQ(RunInside({"--label", "ltoe", "point", file}).Status, 1);
  EXPECT_EQ(RunInside({"--further-labels", "--label", "ltoe", "point", file}).Status, 0);
  EXPECT_THAT(RunInside({"--further-labels", "labels", file}).Out, HasSubstr("\n256  LTOE\n"));
}

TEST(TableCommandLine, ReportWithoutATableIsWrongUsage) {
  for (const auto& report : reports::kReports) {
    if (!report.Columns.empty()) continue;
    const ToolResult run = RunInside({"--format", "json", std::string(report.Name), "x.c3d"});
    EXPECT_EQ(run.Status, 2);
    EXPECT_THAT(run.Err,
                HasSubstr("has no table; there are tables of: header, parameters, labels"));
  }
}

TEST(TableCommandLine, UnknownFormatIsWrongUsage) {
  const ToolResult run = RunInside({"--format", "xml", "header", "x.c3d"});
  EXPECT_EQ(run.Status, 2);
  EXPECT_THAT(run.Err, HasSubstr("'xml' is none of"));
}

TEST(TableCommandLine, TextReportTakesOneLabel) {
  EXPECT_EQ(RunInside({"--label", "A", "--label", "B", "point", "x.c3d"}).Status, 2);
  EXPECT_EQ(RunInside({"--all-labels", "point", "x.c3d"}).Status, 2);
  EXPECT_EQ(RunInside({"--format", "csv", "point", "x.c3d"}).Status, 2) << "no label at all";
}

}  // namespace
