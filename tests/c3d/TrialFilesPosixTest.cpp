// SPDX-License-Identifier: GPL-3.0-or-later

#include <filesystem>
#include <fstream>
#include <string>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>
#include <vector>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "c3d/TrialFiles.h"
#include "tests/TestTrials.h"

namespace {

namespace fs = std::filesystem;
using testing::ElementsAre;

std::vector<std::string> Found(const fs::path& folder) {
  return modVantrel::TrialsBelow(folder.string(), [](const auto& unread, const auto& why) {
    ADD_FAILURE() << unread << ": " << why.what();
  });
}

TEST(TrialsOfLinks, AreNotThoseOfAFolderThatALinkLeadsTo) {
  const tests::TemporaryFolder folder;
  fs::create_directory(folder / "real");
  std::ofstream(folder / "real/a.c3d").put('x');
  fs::create_directory_symlink(folder / "real", folder / "linked");
  fs::create_directory_symlink(folder.Path(), folder / "real/round");
  EXPECT_THAT(Found(folder.Path()), ElementsAre((folder / "real/a.c3d").string()));
  EXPECT_THAT(Found(folder / "linked"), ElementsAre((folder / "linked/a.c3d").string()))
      << "the folder that is asked for is followed";
}

TEST(TrialsOfLinks, AreFilesThatLinksLeadToAndLinksThatLeadNowhere) {
  const tests::TemporaryFolder folder;
  std::ofstream(folder / "data").put('x');
  fs::create_symlink("data", folder / "a.c3d");
  fs::create_symlink("nothing", folder / "b.c3d");
  EXPECT_THAT(Found(folder.Path()),
              ElementsAre((folder / "a.c3d").string(), (folder / "b.c3d").string()));
}

TEST(TrialsOfLinks, AreNoPipesOrDevices) {
  const tests::TemporaryFolder folder;
  ASSERT_EQ(::mkfifo((folder / "pipe.c3d").c_str(), 0600), 0);
  fs::create_symlink("/dev/zero", folder / "zero.c3d");
  EXPECT_THAT(Found(folder.Path()), testing::IsEmpty());
}

TEST(TrialsOfNames, ThatAreNoUtf8AreTheirBytes) {
  const tests::TemporaryFolder folder;
  std::ofstream(folder.Path() / "m\xFCller.c3d").put('x');
  EXPECT_THAT(Found(folder.Path()), ElementsAre(folder.Path().string() + "/m\xFCller.c3d"));
}

TEST(TrialsOfFolder, WhosePathIsLongerThanTheSystemTakesIsToldOf) {
  const tests::TemporaryFolder folder;
  const std::string name(250, 'd');
  const fs::path before = fs::current_path();
  fs::current_path(folder.Path());
  for (int i = 0; i < 17; ++i) {
    fs::create_directory(name);
    fs::current_path(name);
  }
  fs::current_path(before);
  std::vector<std::string> unread;
  modVantrel::TrialsBelow(folder.Path().string(),
                          [&](const auto& deep, const auto& /*why*/) { unread.push_back(deep); });
  ASSERT_EQ(unread.size(), 1U);
  EXPECT_GE(unread[0].size(), 4096U);
}

TEST(TrialsOfFolder, ThatMayNotBeReadIsToldOfAndTheOthersAreFound) {
  const tests::TemporaryFolder folder;
  for (const char* name : {"a", "b", "c"}) {
    fs::create_directory(folder / name);
    std::ofstream(folder / name / "walk.c3d").put('x');
  }
  fs::permissions(folder.Path(), fs::perms::all);
  fs::permissions(folder / "b", fs::perms::none);
  const pid_t child = ::fork();
  if (child == 0) {
    constexpr uid_t kNobody = 65534;
    if (::getuid() == 0 && ::setuid(kNobody) != 0) ::_exit(255);
    std::string unread;
    const auto found = modVantrel::TrialsBelow(
        folder.Path().string(),
        [&](const auto& name, const auto& why) { unread += name + ": " + why.what(); });
    const bool isRight = unread == (folder / "b").string() + ": Permission denied" &&
                         found == std::vector<std::string>{(folder / "a/walk.c3d").string(),
                                                           (folder / "c/walk.c3d").string()};
    ::_exit(isRight ? 0 : 1);
  }
  int status = 0;
  ::waitpid(child, &status, 0);
  fs::permissions(folder / "b", fs::perms::all);
  EXPECT_EQ(WEXITSTATUS(status), 0);
}

}  // namespace
