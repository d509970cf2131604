// SPDX-License-Identifier: GPL-3.0-or-later

#include <csignal>
#include <filesystem>
#include <functional>
#include <span>
#include <string>
#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>

#include <gtest/gtest.h>

#include "support/FileSystem.h"
#include "tests/TestTrials.h"

namespace {

namespace fs = std::filesystem;
using tests::ErrorNumberOf;

// The number of the error that `work` ends in where no file may be longer than `bytes`.
int ErrorUnderLimit(rlim_t bytes, const std::function<void()>& work) {
  const pid_t child = ::fork();
  if (child == 0) {
    std::signal(SIGXFSZ, SIG_IGN);
    const rlimit limit{bytes, bytes};
    if (::setrlimit(RLIMIT_FSIZE, &limit) != 0) ::_exit(0);
    ::_exit(ErrorNumberOf(work));
  }
  int status = 0;
  ::waitpid(child, &status, 0);
  return WIFEXITED(status) ? WEXITSTATUS(status) : -1;
}

TEST(WriteNewFile, ThatFailsHalfWayLeavesNoPartOfIt) {
  const tests::TemporaryFolder folder;
  const std::string content(100'000, 'x');
  const std::string path = (folder / "new").string();
  EXPECT_EQ(
      ErrorUnderLimit(
          5000, [&] { modAllPurpose::WriteNewFile(path, std::as_bytes(std::span(content))); }),
      61);
  EXPECT_TRUE(fs::is_empty(folder.Path()));
}

TEST(WriteNewFile, TakesNoPlaceOfALinkThatLeadsNowhere) {
  const tests::TemporaryFolder folder;
  fs::create_symlink("nowhere", folder / "link");
  EXPECT_EQ(ErrorNumberOf([&] { modAllPurpose::WriteNewFile((folder / "link").string(), {}); }),
            75);
  EXPECT_FALSE(fs::exists(folder / "nowhere"));
}

TEST(RemoveFile, TakesALinkAwayAndLeavesItsFolder) {
  const tests::TemporaryFolder folder;
  fs::create_directory(folder / "folder");
  fs::create_symlink("folder", folder / "link");
  modAllPurpose::RemoveFile((folder / "link").string());
  EXPECT_FALSE(fs::is_symlink(folder / "link"));
  EXPECT_TRUE(fs::is_directory(folder / "folder"));
}

TEST(WholePath, StandsBehindTheCurrentFolderWithItsLinksAsTheyAreWritten) {
  const tests::TemporaryFolder folder;
  const fs::path before = fs::current_path();
  fs::current_path(folder.Path());
  const std::string here = fs::current_path().string();
  EXPECT_EQ(modAllPurpose::WholePath("a.c3d"), here + "/a.c3d");
  EXPECT_EQ(modAllPurpose::WholePath("link/../a.c3d"), here + "/link/../a.c3d");
  EXPECT_EQ(modAllPurpose::WholePath("/data/m\xFCller.c3d"), "/data/m\xFCller.c3d");
  EXPECT_EQ(modAllPurpose::WholePath(""), "");
  fs::current_path(before);
}

TEST(OneSpelling, IsThatOfTheFileALinkLeadsTo) {
  const tests::TemporaryFolder folder;
  modAllPurpose::WriteNewFile((folder / "file").string(), {});
  fs::create_symlink("file", folder / "link");
  EXPECT_EQ(modAllPurpose::OneSpelling((folder / "link").string()),
            modAllPurpose::OneSpelling((folder / "file").string()));
}

TEST(OneSpelling, OfAMissingFileIsThatInTheCurrentFolder) {
  const std::string whole = (fs::canonical(fs::current_path()) / "no such file").string();
  EXPECT_EQ(modAllPurpose::OneSpelling("no such file"), whole);
  EXPECT_EQ(modAllPurpose::OneSpelling("./no such file"), whole);
  EXPECT_EQ(modAllPurpose::OneSpelling("no such folder/../no such file"), whole);
}

TEST(IsSameSpelling, LooksNoLinkUpAndTellsCasesApart) {
  const tests::TemporaryFolder folder;
  modAllPurpose::WriteNewFile((folder / "file").string(), {});
  fs::create_symlink("file", folder / "link");
  const std::string file = (folder / "file").string();
  EXPECT_TRUE(modAllPurpose::IsSameSpelling(file, file));
  EXPECT_FALSE(modAllPurpose::IsSameSpelling(file, (folder / "link").string()));
  EXPECT_FALSE(modAllPurpose::IsSameSpelling("/data/a.c3d", "/data/A.c3d"));
}

TEST(OneSpelling, IsThePathItselfWhereTheSystemCannotTell) {
  const tests::TemporaryFolder folder;
  fs::create_symlink("loop", folder / "loop");
  const std::string path = (folder / "loop" / "x" / ".." / "y").string();
  EXPECT_EQ(modAllPurpose::OneSpelling(path), path);
}

TEST(IsNameTaken, IsTrueForALinkThatLeadsNowhere) {
  const tests::TemporaryFolder folder;
  fs::create_symlink("nowhere", folder / "link");
  EXPECT_TRUE(modAllPurpose::IsNameTaken((folder / "link").string()));
  EXPECT_FALSE(modAllPurpose::FileExists((folder / "link").string()));
}

}  // namespace
