// SPDX-License-Identifier: GPL-3.0-or-later

#include <filesystem>
#include <fstream>
#include <string>
#include <vector>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "c3d/TrialFiles.h"
#include "support/FileSystem.h"
#include "tests/TestTrials.h"

namespace {

using testing::ElementsAre;
using testing::IsEmpty;

// A folder with empty files in it, and what is found there.
class TrialsInFolder : public testing::Test {
 protected:
  void Make(const std::string& name) {
    const auto path = folder_ / name;
    std::filesystem::create_directories(path.parent_path());
    std::ofstream(path).put('x');
  }

  std::string Path(const std::string& name) const {
    return modAllPurpose::Utf8Path(folder_ / name);
  }

  // What is found below `start`, as names below the folder.
  std::vector<std::string> Found(const std::string& start) {
    std::vector<std::string> names;
    const auto found = modVantrel::TrialsBelow(
        start, [this](const std::string& folder, const modAllPurpose::RuntimeError& why) {
          unread_.push_back(folder + ": " + why.what());
        });
    for (const std::string& path : found) names.push_back(path.substr(start.size()));
    return names;
  }

  std::vector<std::string> Found() { return Found(modAllPurpose::Utf8Path(folder_.Path())); }

  tests::TemporaryFolder folder_;
  std::vector<std::string> unread_;
};

TEST(IsTrialName, EndsInC3dInAnyCase) {
  EXPECT_TRUE(modVantrel::IsTrialName("walk.c3d"));
  EXPECT_TRUE(modVantrel::IsTrialName("WALK.C3D"));
  EXPECT_TRUE(modVantrel::IsTrialName("a.b.C3d"));
  EXPECT_FALSE(modVantrel::IsTrialName("walk.c3d.bak"));
  EXPECT_FALSE(modVantrel::IsTrialName("walkc3d"));
  EXPECT_FALSE(modVantrel::IsTrialName(".c3d")) << "that is a name without an ending";
}

TEST_F(TrialsInFolder, AreFoundInTheOrderOfNamesWithFoldersAtTheirPlace) {
  for (const char* name : {"c.c3d", "b/z.c3d", "b/a.C3D", "a.c3d", "b.c3d", "d/e/f.c3d", "note.txt",
                           "Z.c3d", "d/photo.jpg"}) {
    Make(name);
  }
  EXPECT_THAT(Found(), ElementsAre("/Z.c3d", "/a.c3d", "/b/a.C3D", "/b/z.c3d", "/b.c3d", "/c.c3d",
                                   "/d/e/f.c3d"));
  EXPECT_THAT(unread_, IsEmpty());
}

TEST_F(TrialsInFolder, AreNamedBehindTheFolderAsItIsWritten) {
  Make("a.c3d");
  EXPECT_THAT(Found(Path("") + "/"), ElementsAre("a.c3d"));
  EXPECT_THAT(Found(Path("") + "/."), ElementsAre("/a.c3d"));
}

TEST_F(TrialsInFolder, MayStandInAFolderThatIsNamedLikeOne) {
  Make("session.c3d/walk.c3d");
  EXPECT_THAT(Found(), ElementsAre("/session.c3d/walk.c3d"));
}

TEST_F(TrialsInFolder, ThatIsNotThereIsToldOf) {
  EXPECT_THAT(Found(Path("missing")), IsEmpty());
  EXPECT_THAT(unread_, ElementsAre(Path("missing") + ": File not found"));
}

}  // namespace
