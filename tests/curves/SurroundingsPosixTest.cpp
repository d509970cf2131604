// SPDX-License-Identifier: GPL-3.0-or-later

// vantrel-curves among displays and links as this system has them.

#include <filesystem>
#include <string>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "sample/SampleWalk.h"
#include "tests/TestTrials.h"
#include "tests/curves/CurvesInside.h"

namespace {

using testing::HasSubstr;
using testing::StartsWith;
using tests::ToolResult;

class CurvesSurroundings : public testing::Test {
 protected:
  CurvesSurroundings() { sample::SampleWalk().Build().WriteTo(folder_ / "walk.c3d"); }
  std::string In(const std::string& name) const { return (folder_ / name).string(); }

 private:
  tests::TemporaryFolder folder_;
};

TEST_F(CurvesSurroundings, ATrialIsNotReplacedThroughALink) {
  std::filesystem::create_symlink("walk.c3d", In("link.json"));
  const std::string before = tests::ReadWholeFile(In("walk.c3d"));
  const ToolResult run =
      tests::RunCurvesInside({"--overwrite", "--output", In("link.json"), In("walk.c3d")});
  EXPECT_EQ(run.Status, 1);
  EXPECT_THAT(run.Err, HasSubstr("is read for the pages and stays as it is"));
  EXPECT_EQ(tests::ReadWholeFile(In("walk.c3d")), before);
}

TEST_F(CurvesSurroundings, NeedNoDisplayAndAreNotRemarkedOn) {
  ::setenv("DISPLAY", "nowhere.invalid:9", 1);
  ::setenv("QT_QPA_PLATFORM", "xcb", 1);
  ::unsetenv("XDG_RUNTIME_DIR");
  const ToolResult run = tests::RunTool({"--output", In("a.pdf"), In("walk.c3d")});
  EXPECT_EQ(run.Status, 0);
  EXPECT_EQ(run.Out + run.Err, "");
  EXPECT_THAT(tests::ReadWholeFile(In("a.pdf")), StartsWith("%PDF-"));
}

}  // namespace
