// SPDX-License-Identifier: GPL-3.0-or-later

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <rapidjson/document.h>
#include <string>
#include <thread>
#include <vector>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "c3d/OpenC3dFile.h"
#include "gait/EventExtraction.h"
#include "pages/MakePages.h"
#include "pages/PageJson.h"
#include "tests/GaitTrials.h"
#include "tests/curves/CurvesInside.h"

// What vantrel-curves does with trials and files.
namespace {

using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::SizeIs;
using testing::StartsWith;
using tests::RunCurvesInside;
using tests::ToolResult;
using tests::WalkOfOneStride;

class CurvesTest : public testing::Test {
 protected:
  std::string In(const std::string& name) const { return (folder_ / name).string(); }
  std::string Given(const std::string& name) const {
    return Given(name, WalkOfOneStride().Build());
  }
  std::string Given(const std::string& name, const sample::Trial& trial) const {
    trial.WriteTo(folder_ / name);
    return In(name);
  }
  std::string GivenText(const std::string& name, const std::string& text) const {
    std::ofstream(folder_ / name, std::ios::binary) << text;
    return In(name);
  }
  std::string Text(const std::string& name) const { return tests::ReadWholeFile(folder_ / name); }
  std::vector<std::string> Names() const { return tests::NamesIn(folder_.Path()); }

 private:
  tests::TemporaryFolder folder_;
};

// Normal values of the knee's flexion alone.
std::string NormalKnee() {
  std::string rows = "label,component,percent,mean,sd,n,unit\n";
  for (int percent = 0; percent <= 100; percent += 2) {
    rows += "KneeAngles,x," + std::to_string(percent) + ",30,5,20,deg\n";
  }
  return rows;
}

std::vector<std::string> PageNames(const std::string& json) {
  rapidjson::Document document;
  document.Parse(json.c_str());
  std::vector<std::string> names;
  for (const auto& page : document["pages"].GetArray())
    names.emplace_back(page["name"].GetString());
  return names;
}

TEST_F(CurvesTest, WritesBothFirstPagesWhereNoneIsNamed) {
  const ToolResult run = RunCurvesInside({"--output", In("a.json"), Given("walk.c3d")});
  EXPECT_EQ(run.Status, 0) << run.Err;
  EXPECT_THAT(PageNames(Text("a.json")), ElementsAre("kinematics", "kinetics"));
  EXPECT_EQ(run.Out + run.Err, "");
}

TEST_F(CurvesTest, WritesEachNamedPageOnceInTheirOrder) {
  const ToolResult run = RunCurvesInside({"--page", "measures", "--page", "kinematics", "--page",
                                          "measures", "--output", In("a.json"), Given("w.c3d")});
  EXPECT_EQ(run.Status, 0) << run.Err;
  EXPECT_THAT(PageNames(Text("a.json")), ElementsAre("measures", "kinematics"));
}

TEST_F(CurvesTest, JsonIsThePagesAsTheyAreMadeOfTheTrials) {
  const std::string walk = Given("walk.c3d");
  const ToolResult run =
      RunCurvesInside({"--output", In("a.json"), "--title", "T", "--page", "kinematics", walk});
  ASSERT_EQ(run.Status, 0) << run.Err;
  modVantrel::FileState state;
  ASSERT_EQ(OpenC3dFile(state, walk, modVantrel::FindGaitEvents), modVantrel::OpenResult::Success);
  std::vector trials = {pages::ReadTrialValues(state, {{pages::PageKind::Kinematics}, {}})};
  pages::PageChoice choice;
  choice.Kinds = {pages::PageKind::Kinematics};
  choice.Title = "T";
  choice.Program = "vantrel-curves " VANTREL_VERSION;
  EXPECT_EQ(Text("a.json"), pages::JsonOf(pages::MakePages(trials, choice)));
  EXPECT_THAT(Text("a.json"), HasSubstr("\"Knee flexion\""));
}

TEST_F(CurvesTest, WritesEachKindOfFileByItsEnding) {
  const std::string walk = Given("walk.c3d");
  for (const char* name : {"a.pdf", "a.Svg", "a.PNG"}) {
    const ToolResult run = RunCurvesInside({"--page", "kinematics", "--output", In(name), walk});
    EXPECT_EQ(run.Status, 0) << run.Err;
  }
  EXPECT_THAT(Text("a.pdf"), StartsWith("%PDF-"));
  EXPECT_THAT(Text("a.Svg"), StartsWith("<?xml"));
  EXPECT_THAT(Text("a.PNG"), StartsWith("\x89PNG"));
}

TEST_F(CurvesTest, NumbersSeveralPagesOfPictures) {
  const ToolResult run = RunCurvesInside({"--output", In("a.svg"), Given("walk.c3d")});
  EXPECT_EQ(run.Status, 0) << run.Err;
  EXPECT_THAT(Names(), ElementsAre("a-1.svg", "a-2.svg", "walk.c3d"));
}

TEST_F(CurvesTest, DrawsStridesOfOneFileAndMeansOfSeveral) {
  const std::string one = Given("one.c3d");
  const std::string two = Given("two.c3d");
  const auto drawn = [&](std::vector<std::string> arguments) {
    arguments.insert(arguments.end(),
                     {"--page", "kinematics", "--overwrite", "--output", In("a.svg")});
    EXPECT_EQ(RunCurvesInside(arguments).Status, 0);
    return Text("a.svg");
  };
  constexpr const char* kMeanLine = "stroke=\"#d32f2f\" stroke-opacity=\"1\" stroke-width=\"15\"";
  EXPECT_THAT(drawn({one}), Not(HasSubstr(kMeanLine)));
  EXPECT_THAT(drawn({one, two}), HasSubstr(kMeanLine));
  EXPECT_THAT(drawn({one, "--mean"}), HasSubstr(kMeanLine));
  EXPECT_THAT(drawn({one, two, "--strides"}), Not(HasSubstr(kMeanLine)));
}

TEST_F(CurvesTest, ExistingFileStaysUnlessItMayBeReplaced) {
  const std::string walk = Given("walk.c3d");
  const std::string taken = GivenText("a.json", "mine");
  const ToolResult refused = RunCurvesInside({"--output", taken, walk});
  EXPECT_EQ(refused.Status, 1);
  EXPECT_EQ(refused.Err,
            "vantrel-curves: " + taken + " exists already (--overwrite replaces it)\n");
  EXPECT_EQ(Text("a.json"), "mine");
  EXPECT_EQ(RunCurvesInside({"--overwrite", "--output", taken, walk}).Status, 0);
  EXPECT_THAT(Text("a.json"), StartsWith("{"));
}

TEST_F(CurvesTest, WhatThePagesAreMadeOfIsNeverReplaced) {
  const std::string walk = Given("walk.c3d");
  const std::string likeAPage = Given("a-1.svg");
  const std::string notRead = GivenText("bad.json", "no trial");
  const std::string norms = GivenText("norms.json", NormalKnee());
  std::filesystem::create_hard_link(In("walk.c3d"), In("twin.json"));
  const auto before = Text("walk.c3d");
  for (const std::vector<std::string>& words : {
           std::vector<std::string>{In("twin.json"), walk},
           std::vector<std::string>{In("a.svg"), walk, likeAPage},
           std::vector<std::string>{notRead, walk, notRead},
           std::vector<std::string>{norms, walk, "--normal", norms},
       }) {
    std::vector<std::string> line = {"--overwrite", "--output"};
    line.insert(line.end(), words.begin(), words.end());
    const ToolResult run = RunCurvesInside(line);
    EXPECT_EQ(run.Status, 1) << words[0];
    EXPECT_THAT(run.Err, HasSubstr("is read for the pages and stays as it is"));
  }
  EXPECT_EQ(Text("walk.c3d"), before);
  EXPECT_EQ(Text("a-1.svg"), before);
  EXPECT_EQ(Text("bad.json"), "no trial");
  EXPECT_THAT(Text("norms.json"), StartsWith("label,"));
  EXPECT_THAT(Names(), testing::Not(testing::Contains("a-2.svg")));
}

TEST_F(CurvesTest, TrialThatNobodyNamedIsNotReplacedEither) {
  const std::string other = Given("other.json");
  const auto before = Text("other.json");
  const ToolResult run = RunCurvesInside({"--overwrite", "--output", other, Given("walk.c3d")});
  EXPECT_EQ(run.Status, 1);
  EXPECT_THAT(run.Err, HasSubstr("is a C3D file and stays as it is"));
  EXPECT_EQ(Text("other.json"), before);
}

TEST_F(CurvesTest, PagesOfEveryKindMayBeReplaced) {
  const std::string walk = Given("walk.c3d");
  for (const char* name : {"a.pdf", "a.svg", "a.png", "a.json"}) {
    for (int i = 0; i < 2; ++i) {
      const ToolResult run =
          RunCurvesInside({"--overwrite", "--page", "measures", "--output", In(name), walk});
      EXPECT_EQ(run.Status, 0) << run.Err;
    }
  }
}

TEST_F(CurvesTest, WhereOnePictureCannotBeReplacedNoneIs) {
  GivenText("a-1.svg", "old");
  std::filesystem::create_directory(In("a-2.svg"));
  const ToolResult run =
      RunCurvesInside({"--overwrite", "--output", In("a.svg"), Given("walk.c3d")});
  EXPECT_EQ(run.Status, 1);
  EXPECT_THAT(run.Err, HasSubstr("a-2.svg"));
  EXPECT_EQ(Text("a-1.svg"), "old");
  EXPECT_THAT(Names(), ElementsAre("a-1.svg", "a-2.svg", "walk.c3d"));
}

TEST_F(CurvesTest, PicturesAreReplacedTogether) {
  GivenText("a-1.svg", "old");
  const ToolResult run =
      RunCurvesInside({"--overwrite", "--output", In("a.svg"), Given("walk.c3d")});
  EXPECT_EQ(run.Status, 0) << run.Err;
  EXPECT_THAT(Text("a-1.svg"), StartsWith("<?xml"));
  EXPECT_THAT(Text("a-2.svg"), StartsWith("<?xml"));
}

TEST_F(CurvesTest, WhereOnePictureExistsNoneIsWritten) {
  GivenText("a-2.svg", "mine");
  const ToolResult run = RunCurvesInside({"--output", In("a.svg"), Given("walk.c3d")});
  EXPECT_EQ(run.Status, 1);
  EXPECT_THAT(run.Err, HasSubstr("a-2.svg exists already"));
  EXPECT_THAT(Names(), ElementsAre("a-2.svg", "walk.c3d"));
}

TEST_F(CurvesTest, FileThatFailsIsNamedAndThePagesOfTheOthersAreWritten) {
  const std::string good = Given("good.c3d");
  sample::Trial cut = WalkOfOneStride().Build();
  const std::string bad = Given("bad.c3d", cut.TruncateTo(cut.Size() - 600));
  const ToolResult run = RunCurvesInside({"--output", In("a.json"), bad, good});
  EXPECT_EQ(run.Status, 1);
  EXPECT_THAT(run.Err, StartsWith("vantrel-curves: " + bad + ": "));
  EXPECT_EQ(RunCurvesInside({"--output", In("b.json"), good}).Status, 0);
  EXPECT_EQ(Text("a.json"), Text("b.json"));
}

TEST_F(CurvesTest, WhereNoFileCanBeReadNothingIsWritten) {
  const ToolResult run =
      RunCurvesInside({"--output", In("a.pdf"), In("none.c3d"), GivenText("no.c3d", "text")});
  EXPECT_EQ(run.Status, 1);
  EXPECT_THAT(tests::LinesOf(run.Err), SizeIs(2));
  EXPECT_THAT(Names(), ElementsAre("no.c3d"));
}

TEST_F(CurvesTest, LabelThatAFileLacksIsNamed) {
  const std::string walk = Given("walk.c3d");
  const ToolResult run = RunCurvesInside(
      {"--page", "label", "--label", "ltoe", "--label", "LXYZ", "--output", In("a.json"), walk});
  EXPECT_EQ(run.Status, 1);
  EXPECT_EQ(run.Err, "vantrel-curves: " + walk + ": point label not found: LXYZ\n");
  EXPECT_THAT(PageNames(Text("a.json")), ElementsAre("label"));
}

TEST_F(CurvesTest, FileThatLacksALabelIsNamedThoughAnotherHasIt) {
  const std::string walk = Given("walk.c3d");
  const std::string bare = Given("bare.c3d", tests::WholeFrameTrial().Build());
  const ToolResult run = RunCurvesInside(
      {"--page", "label", "--label", "LKneeAngles", "--output", In("a.json"), walk, bare});
  EXPECT_EQ(run.Status, 1);
  EXPECT_EQ(run.Err, "vantrel-curves: " + bare + ": point label not found: LKneeAngles\n");
  EXPECT_THAT(PageNames(Text("a.json")), ElementsAre("label"));
}

TEST_F(CurvesTest, LabelIsNamedBeforeTheErrorThatLeavesItsFileOut) {
  sample::Trial cut = WalkOfOneStride().Build();
  const std::string bad = Given("bad.c3d", cut.TruncateTo(cut.Size() - 600));
  const ToolResult run = RunCurvesInside({"--page", "label", "--page", "kinematics", "--label",
                                          "LXYZ", "--output", In("a.json"), bad});
  EXPECT_EQ(run.Status, 1);
  EXPECT_EQ(run.Err, "vantrel-curves: " + bad + ": point label not found: LXYZ\n" +
                         "vantrel-curves: " + bad +
                         ": Run-time error '62': Input past end of file\n");
}

TEST_F(CurvesTest, WhereNoFileHasAnyOfTheLabelsNothingIsWritten) {
  const ToolResult run = RunCurvesInside(
      {"--page", "label", "--label", "LXYZ", "--output", In("a.pdf"), Given("walk.c3d")});
  EXPECT_EQ(run.Status, 1);
  EXPECT_THAT(Names(), ElementsAre("walk.c3d"));
}

TEST_F(CurvesTest, VariablesThatScoresLackAreNamed) {
  const ToolResult run = RunCurvesInside({"--page", "scores", "--page", "scores", "--normal",
                                          GivenText("n.csv", NormalKnee()), "--output",
                                          In("a.json"), Given("walk.c3d")});
  EXPECT_EQ(run.Status, 1);
  const auto lines = tests::LinesOf(run.Err);
  ASSERT_THAT(lines, SizeIs(17)) << "all but the left knee";
  EXPECT_EQ(lines[0], "vantrel-curves: scores: Left PelvisAngles.x: no curve in the trials");
  EXPECT_EQ(lines[5], "vantrel-curves: scores: Left HipAngles.z: no curve in the trials");
  EXPECT_EQ(lines[6], "vantrel-curves: scores: Left AnkleAngles.x: no curve in the trials");
  EXPECT_THAT(PageNames(Text("a.json")), ElementsAre("scores"));
}

TEST_F(CurvesTest, NormalsThatCannotBeReadEndTheCommand) {
  const std::string normals = GivenText("n.csv", "a,b\n1,2\n");
  const ToolResult run =
      RunCurvesInside({"--normal", normals, "--output", In("a.pdf"), Given("walk.c3d")});
  EXPECT_EQ(run.Status, 1);
  EXPECT_THAT(run.Err, StartsWith("vantrel-curves: " + normals + ", line 1: "));
  EXPECT_THAT(Names(), ElementsAre("n.csv", "walk.c3d"));
}

TEST_F(CurvesTest, FileThatCannotBeMadeIsNamed) {
  const ToolResult run = RunCurvesInside({"--output", In("missing/a.json"), Given("walk.c3d")});
  EXPECT_EQ(run.Status, 1);
  EXPECT_THAT(run.Err, HasSubstr("Path not found"));
}

TEST_F(CurvesTest, OfTwoRunsAtOnceOneWritesAllItsPicturesAndTheOtherNone) {
  const std::string walk = Given("walk.c3d");
  std::vector<ToolResult> runs(2);
  std::vector<std::thread> threads;
  for (ToolResult& run : runs) {
    threads.emplace_back([&] { run = tests::RunTool({"--output", In("a.svg"), walk}); });
  }
  for (std::thread& thread : threads) thread.join();
  EXPECT_EQ(std::ranges::count(runs, 0, &ToolResult::Status), 1);
  EXPECT_EQ(std::ranges::count(runs, 1, &ToolResult::Status), 1);
  EXPECT_THAT(Names(), ElementsAre("a-1.svg", "a-2.svg", "walk.c3d"));
}

}  // namespace
