// SPDX-License-Identifier: GPL-3.0-or-later

#include <fstream>
#include <rapidjson/document.h>
#include <string>
#include <utility>
#include <vector>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "tests/GaitTrials.h"
#include "tests/cli/ToolInside.h"

namespace {

using testing::HasSubstr;
using testing::StartsWith;
using tests::RunInside;
using tests::ToolResult;
using tests::WalkOfOneStride;

class PooledTest : public testing::Test {
 protected:
  std::string Given(const std::string& name, const sample::Trial& trial) {
    trial.WriteTo(folder_ / name);
    return (folder_ / name).string();
  }
  std::string GivenText(const std::string& name, const std::string& text) {
    std::ofstream(folder_ / name, std::ios::binary) << text;
    return (folder_ / name).string();
  }

 private:
  tests::TemporaryFolder folder_;
};

TEST_F(PooledTest, VisitIsOneTextOverAllFiles) {
  const std::string first = Given("a.c3d", WalkOfOneStride().Build());
  const std::string second = Given("b.c3d", WalkOfOneStride().Build());
  const ToolResult run = RunInside({"visit", first, second});
  EXPECT_EQ(run.Status, 0) << run.Err;
  EXPECT_THAT(run.Out, StartsWith("Measure "));
  EXPECT_THAT(run.Out, HasSubstr("1.00 \xC2\xB1 0.00 (2)"));
  EXPECT_EQ(run.Out.find("==>"), std::string::npos);
}

TEST_F(PooledTest, FileThatFailsIsNamedAndLeftOutWhole) {
  const std::string good = Given("good.c3d", WalkOfOneStride().Build());
  sample::Trial cut = WalkOfOneStride().Build();
  const std::string bad = Given("bad.c3d", cut.TruncateTo(cut.Size() - 600));
  const ToolResult alone = RunInside({"--format", "csv", "visit", good});
  const ToolResult both = RunInside({"--format", "csv", "visit", bad, good});
  EXPECT_EQ(both.Status, 1);
  EXPECT_EQ(both.Out, alone.Out);
  EXPECT_EQ(both.Err, "vantrel-report: " + bad + ": Run-time error '62': Input past end of file\n");
}

TEST_F(PooledTest, LabelThatATrialLacksIsNamedBeforeTheErrorThatLeavesItOut) {
  sample::Trial cut = WalkOfOneStride().Build();
  const std::string bad = Given("bad.c3d", cut.TruncateTo(cut.Size() - 600));
  for (const auto& [report, label] :
       {std::pair{"variability", "LKneeAngles"}, std::pair{"norms", "KneeAngles"}}) {
    const ToolResult run =
        RunInside({"--format", "csv", "--label", label, "--label", "Nothing", report, bad});
    EXPECT_EQ(run.Status, 1) << report;
    EXPECT_EQ(run.Err, "vantrel-report: " + bad + ": point label not found: Nothing\n" +
                           "vantrel-report: " + bad +
                           ": Run-time error '62': Input past end of file\n")
        << report;
  }
}

TEST_F(PooledTest, EmptyLabelIsNoneThatATrialHas) {
  sample::TrialBuilder builder = WalkOfOneStride();
  const std::string file = Given("a.c3d", builder.AddPoint("", tests::Standing(1, 2, 3)).Build());
  EXPECT_EQ(RunInside({"--format", "csv", "--label", "", "variability", file}).Err,
            "vantrel-report: " + file + ": point label not found: \n");
}

// The walk behind 255 other points, so that its own labels stand in LABELS2.
sample::TrialBuilder WalkOfFurtherLabels() {
  sample::TrialBuilder builder = tests::WholeFrameTrial();
  constexpr int kFirstTable = 255;
  std::vector<std::string> first;
  for (int i = 1; i <= kFirstTable; ++i) {
    first.push_back(tests::Numbered("P", i));
    builder.AddPoint(first.back(), tests::Standing(1, 2, 3));
  }
  builder.AddPoint("LTOE", tests::Moving({}, {20, 0, 0}))
      .AddPoint("RTOE", tests::Standing(840, 100, 0))
      .AddPoint("LKneeAngles", tests::Standing(30, 1, 2));
  builder.SetParam("POINT", sample::TextListParam("LABELS", first));
  return builder.SetParam("POINT",
                          sample::TextListParam("LABELS2", {"LTOE", "RTOE", "LKneeAngles"}));
}

// What those reports print of the walk's labels is the same wherever these stand.
TEST_F(PooledTest, FurtherLabelsAreFoundByTheirNames) {
  const std::string normal = GivenText(
      "norms.csv",
      RunInside({"--format", "csv", "norms", Given("norm.c3d", WalkOfOneStride().Build())}).Out);
  const std::vector<std::vector<std::string>> reports = {{"summary"},
                                                         {"visit"},
                                                         {"--label", "LKneeAngles", "variability"},
                                                         {"--label", "KneeAngles", "norms"},
                                                         {"--normal", normal, "scores"}};
  for (std::vector<std::string> command : reports) {
    command.insert(command.begin(), {"--format", "csv"});
    command.push_back(Given("a.c3d", WalkOfOneStride().Build()));
    const ToolResult known = RunInside(command);
    Given("a.c3d", WalkOfFurtherLabels().Build());
    const ToolResult further = RunInside(command);
    const std::string& report = command[command.size() - 2];
    EXPECT_EQ(further.Out, known.Out) << report;
    EXPECT_EQ(further.Err, known.Err) << report;
    EXPECT_EQ(further.Status, known.Status) << report;
  }
}

// So that the equality above is one of numbers.
TEST_F(PooledTest, FurtherLabelsHaveValues) {
  const std::string file = Given("a.c3d", WalkOfFurtherLabels().Build());
  EXPECT_THAT(RunInside({"--format", "csv", "summary", file}).Out,
              HasSubstr(",stride_length,m,1,,1,"));
  EXPECT_THAT(RunInside({"summary", file}).Out, HasSubstr("1.00 (1)"));
  EXPECT_THAT(RunInside({"--format", "csv", "visit", file}).Out,
              HasSubstr("stride_length,m,1,,1,"));
  EXPECT_THAT(RunInside({"--format", "csv", "--label", "lkneeangles", "variability", file}).Out,
              HasSubstr("Left,LKneeAngles,x,1,"));
  EXPECT_THAT(RunInside({"--format", "csv", "--label", "kneeangles", "norms", file}).Out,
              HasSubstr("KneeAngles,x,0,30,,1,"));
}

TEST_F(PooledTest, NormsAreReadBackAsNormalValues) {
  const std::string file = Given("a.c3d", WalkOfOneStride().Build());
  const ToolResult norms = RunInside({"--format", "csv", "norms", file});
  ASSERT_EQ(norms.Status, 0) << norms.Err;
  const std::string normal = GivenText("norms.csv", norms.Out);
  const ToolResult scores = RunInside({"--format", "csv", "--normal", normal, "scores", file});
  EXPECT_THAT(scores.Out, HasSubstr("Left,KneeAngles.x,0,1,deg\n")) << "its own mean";
  EXPECT_THAT(scores.Err, HasSubstr("scores: "));
}

TEST_F(PooledTest, LabelWithControlCharactersBreaksNoLineOfTextAndStaysWholeInATable) {
  sample::TrialBuilder builder = WalkOfOneStride();
  builder.AddPoint("L\nP\x1B", tests::Standing(5, 6, 7));
  const std::string file = Given("a.c3d", builder.Build());
  const std::string shown = "\xEF\xBF\xBDP\xEF\xBF\xBD";
  EXPECT_THAT(RunInside({"variability", file}).Out, HasSubstr("Left  L" + shown + " "));
  EXPECT_THAT(RunInside({"norms", file}).Out, HasSubstr("\n" + shown + " x\n"));
  EXPECT_THAT(RunInside({"--format", "csv", "norms", file}).Out, HasSubstr("\n\"\nP\x1B\",x,0,5,"));
}

TEST_F(PooledTest, NormalFileThatIsNoneIsNamedWithItsLineAndNothingIsPrinted) {
  const std::string file = Given("a.c3d", WalkOfOneStride().Build());
  const std::string normal = GivenText("norms.csv", "label,component\nnonsense\n");
  const ToolResult run = RunInside({"--format", "csv", "--normal", normal, "scores", file});
  EXPECT_EQ(run.Status, 1);
  EXPECT_EQ(run.Out, "");
  EXPECT_THAT(run.Err, StartsWith("vantrel-report: " + normal + ", line 1: "));
}

TEST_F(PooledTest, SummaryHasTwelveRowsAlsoWithoutStrides) {
  const std::string file = Given("a.c3d", sample::TrialBuilder().Build());
  rapidjson::Document document;
  document.Parse(RunInside({"--format", "json", "summary", file}).Out.c_str());
  ASSERT_EQ(document.Size(), 12U);
  EXPECT_EQ(document[0]["left_n"].GetInt(), 0);
  EXPECT_TRUE(document[0]["left_mean"].IsNull());
}

TEST(PooledCommandLine, ScoresWithoutNormalValuesIsWrongUsage) {
  EXPECT_EQ(RunInside({"scores", "x.c3d"}).Status, 2);
}

}  // namespace
