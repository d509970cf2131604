// SPDX-License-Identifier: GPL-3.0-or-later

#include <fstream>

#include <gtest/gtest.h>

#include "app/TrialFolder.h"
#include "support/FileSystem.h"
#include "tests/DeepFolder.h"
#include "tests/TestTrials.h"
#include "tests/app/UnusualNames.h"

namespace {

class TrialFolder : public ::testing::Test {
 protected:
  std::string Make(const std::string& name) {
    std::ofstream(folder_ / name) << "x";
    return (folder_ / name).string();
  }

  tests::TemporaryFolder folder_;
};

TEST_F(TrialFolder, NeighboursStandInTheOrderOfTheirNamesWithAnyCaseOfTheEnding) {
  const std::string third = Make("c.C3D");
  const std::string first = Make("a.c3d");
  const std::string second = Make("b.c3D");
  EXPECT_EQ(app::NeighboursOf(first).Previous, "");
  EXPECT_EQ(app::NeighboursOf(first).Next, second);
  EXPECT_EQ(app::NeighboursOf(second).Previous, first);
  EXPECT_EQ(app::NeighboursOf(second).Next, third);
  EXPECT_EQ(app::NeighboursOf(third).Next, "");
}

TEST_F(TrialFolder, OtherFilesAndFoldersAreNoTrials) {
  const std::string own = Make("b.c3d");
  Make("a.txt");
  Make("c.c3d.bak");
  Make(".c3d");
  std::filesystem::create_directory(folder_ / "d.c3d");
  EXPECT_EQ(app::NeighboursOf(own).Previous, "");
  EXPECT_EQ(app::NeighboursOf(own).Next, "");
}

TEST_F(TrialFolder, ATrialThatWasRemovedStillHasItsPlace) {
  const std::string first = Make("a.c3d");
  const std::string last = Make("c.c3d");
  const app::Neighbours beside = app::NeighboursOf((folder_ / "b.c3d").string());
  EXPECT_EQ(beside.Previous, first);
  EXPECT_EQ(beside.Next, last);
}

TEST_F(TrialFolder, NamesMayBeAnyThatFilesHave) {
  const std::string first = Make("a.c3d");
  const std::string second = Make("b" + tests::OddestName());
  EXPECT_EQ(app::NeighboursOf(first).Next, second);
  EXPECT_EQ(app::NeighboursOf(second).Previous, first);
}

TEST(TrialFolderOfALongPath, HasItsOwnTrialsForNeighbours) {
  const tests::DeepFolder deep;
  for (const char* name : {"a.c3d", "b.c3d"}) modAllPurpose::WriteNewFile(deep / name, {});
  EXPECT_EQ(app::NeighboursOf(deep / "a.c3d").Next, deep / "b.c3d");
  EXPECT_EQ(app::NeighboursOf(deep / "b.c3d").Previous, deep / "a.c3d");
  EXPECT_EQ(app::NeighboursOf(deep / "b.c3d").Next, "");
}

TEST_F(TrialFolder, AFolderThatIsGoneHasNoNeighbours) {
  const app::Neighbours beside = app::NeighboursOf((folder_ / "gone/b.c3d").string());
  EXPECT_EQ(beside.Previous + beside.Next, "");
}

}  // namespace
