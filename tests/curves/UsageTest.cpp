// SPDX-License-Identifier: GPL-3.0-or-later

#include <fstream>
#include <regex>
#include <set>
#include <string>
#include <variant>
#include <vector>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "curves/CommandLine.h"
#include "tests/TestTrials.h"
#include "tests/curves/CurvesInside.h"

namespace {

using curves::ParseCommandLine;
using curves::Request;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::StartsWith;
using tests::RunCurvesInside;
using tests::ToolResult;

Request Parsed(std::vector<std::string> arguments) {
  arguments.insert(arguments.end(), {"--output", "x.pdf", "walk.c3d"});
  return std::get<Request>(ParseCommandLine(arguments));
}

// Wrong usage, whose message says `what`.
void ExpectRefused(const std::vector<std::string>& arguments, const std::string& what) {
  const ToolResult run = RunCurvesInside(arguments);
  EXPECT_EQ(run.Status, 2) << what;
  EXPECT_THAT(run.Err, StartsWith("vantrel-curves: "));
  EXPECT_THAT(run.Err, HasSubstr(what));
  EXPECT_THAT(run.Err, HasSubstr("Try 'vantrel-curves --help' for more information.\n"));
  EXPECT_EQ(run.Out, "");
}

TEST(CurvesUsage, OptionsAreWhatTheRequestHolds) {
  const Request request =
      Parsed({"--page", "scores", "--normal", "n.csv", "--mean", "--title", "T", "--subject=S",
              "--paper", "letter", "--landscape", "--monochrome", "--overwrite"});
  EXPECT_THAT(request.Kinds, ElementsAre(pages::PageKind::Scores));
  EXPECT_EQ(request.NormalFile, "n.csv");
  EXPECT_EQ(request.Curves, plot::Shown::Means);
  EXPECT_EQ(request.Title, "T");
  EXPECT_EQ(request.Subject, "S");
  EXPECT_EQ(request.Sheet.Size, plot::Paper::Letter);
  EXPECT_TRUE(request.Sheet.IsLandscape);
  EXPECT_TRUE(request.IsMonochrome);
  EXPECT_TRUE(request.Overwrite);
  EXPECT_THAT(request.Files, ElementsAre("walk.c3d"));
}

TEST(CurvesUsage, WithoutOptionsIsTwoPagesOnA4) {
  const Request request = Parsed({});
  EXPECT_THAT(request.Kinds, ElementsAre(pages::PageKind::Kinematics, pages::PageKind::Kinetics));
  EXPECT_EQ(request.Curves, std::nullopt);
  EXPECT_EQ(request.Sheet.Size, plot::Paper::A4);
  EXPECT_FALSE(request.Sheet.IsLandscape || request.IsMonochrome || request.Overwrite);
}

TEST(CurvesUsage, UnknownOptionIsNamedBeforeAnythingElse) {
  ExpectRefused({"--page", "none", "--colour", "red"}, "there is no option '--colour'");
}

TEST(CurvesUsage, OfWhatNothingCanBeDoneForIsRefused) {
  ExpectRefused({"walk.c3d"}, "--output");
  ExpectRefused({"--output", "x.pdf"}, "TRIAL");
  ExpectRefused({"--output", "x.txt", "walk.c3d"}, "'x.txt' ends in none of .pdf, .svg, .png");
  ExpectRefused({"--output", "pdf", "walk.c3d"}, "ends in none of");
  ExpectRefused({"--output", "x.pdf", "--page", "gait", "walk.c3d"}, "'gait' is none of kinem");
  ExpectRefused({"--output", "x.pdf", "--paper", "a5", "walk.c3d"}, "'a5' is none of a4|letter");
  ExpectRefused({"--output", "x.pdf", "--strides", "--mean", "walk.c3d"}, "--strides");
  ExpectRefused({"--output", "x.pdf", "--page", "scores", "walk.c3d"}, "--normal");
  ExpectRefused({"--output", "x.pdf", "--page", "label", "walk.c3d"}, "--label");
  ExpectRefused({"--output", "x.pdf", "--label", "LTOE", "walk.c3d"}, "the page 'label'");
  ExpectRefused({"--output", "x.pdf", "--landscape=yes", "walk.c3d"}, "--landscape takes no value");
}

TEST(CurvesUsage, VersionIsThatOfTheProject) {
  const ToolResult run = RunCurvesInside({"--version"});
  EXPECT_EQ(run.Status, 0);
  EXPECT_EQ(run.Out, "vantrel-curves " VANTREL_VERSION "\n");
}

std::string HelpText() {
  const ToolResult run = RunCurvesInside({"--help"});
  EXPECT_EQ(run.Status, 0);
  return run.Out;
}

std::set<std::string> Found(const std::string& text, const std::regex& pattern) {
  std::set<std::string> found;
  for (std::sregex_iterator next(text.begin(), text.end(), pattern), end; next != end; ++next) {
    found.insert((*next)[1]);
  }
  return found;
}

std::string Document(const std::string& name) {
  return tests::ReadWholeFile(std::filesystem::path(VANTREL_SOURCE_DIR) / "packaging" / name);
}

TEST(CurvesUsage, ManPageAndCompletionHaveTheOptionsOfTheHelp) {
  const auto options = Found(HelpText(), std::regex("(--[a-z][a-z-]+)"));
  ASSERT_GT(options.size(), 10U);
  const std::string page =
      std::regex_replace(Document("man/vantrel-curves.1"), std::regex(R"(\\-)"), "-");
  const std::string completion = Document("completion/vantrel-curves.bash");
  for (const std::string& option : options) {
    EXPECT_THAT(page, HasSubstr(option));
    EXPECT_THAT(completion, HasSubstr(option));
  }
  EXPECT_EQ(Found(completion, std::regex("(--[a-z][a-z-]+)")), options);
}

TEST(CurvesUsage, HelpManPageAndCompletionNameEachPage) {
  const std::string help = HelpText();
  const std::string page = Document("man/vantrel-curves.1");
  const std::string completion = Document("completion/vantrel-curves.bash");
  std::string names;
  for (const auto& known : pages::kPages) {
    EXPECT_THAT(help, HasSubstr("\n  " + std::string(known.Name) + " "));
    EXPECT_THAT(page, HasSubstr("\n.B " + std::string(known.Name) + "\n"));
    names += (names.empty() ? "" : " ") + std::string(known.Name);
  }
  EXPECT_THAT(completion, HasSubstr("local pages=\"" + names + "\"\n"));
}

}  // namespace
