// SPDX-License-Identifier: GPL-3.0-or-later

#include <csignal>
#include <cstddef>
#include <cstdint>
#include <filesystem>
#include <fstream>
#include <functional>
#include <grp.h>
#include <string>
#include <sys/resource.h>
#include <sys/stat.h>
#include <sys/syscall.h>
#include <sys/wait.h>
#include <sys/xattr.h>
#include <unistd.h>
#include <vector>

#include <gtest/gtest.h>

#include "support/FileInWaiting.h"
#include "support/RuntimeError.h"
#include "support/WholeFiles.h"
#include "tests/TestTrials.h"

// Which files are replaced on a POSIX system, and who may do what with a new one.
namespace {

// What a file could be done with, and how much it held, when it was given to somebody.
struct GivenFile {
  mode_t Mode;
  off_t Size;
};
std::vector<GivenFile> givenFiles;

}  // namespace

// In place of the system's own, which it calls: what the program gives away is taken down.
extern "C" int fchown(int file, uid_t owner, gid_t group) noexcept {
  struct stat status {};
  ::fstat(file, &status);
  givenFiles.push_back({status.st_mode & ~static_cast<mode_t>(S_IFMT), status.st_size});
  return static_cast<int>(::syscall(SYS_fchown, file, owner, group));
}

namespace {

namespace fs = std::filesystem;
using modAllPurpose::FileInWaiting;
using modAllPurpose::WriteFileInOneStep;
using modAllPurpose::WriteFileWhereFree;
using tests::ErrorNumberOf;
using tests::kPathFileAccessError;
using tests::ReadWholeFile;

constexpr uid_t kNobody = 65534;
constexpr int kNotPossibleHere = 200;

// What a process ends with that does `work` and nothing else.
int StatusOfChild(const std::function<int()>& work) {
  const pid_t child = ::fork();
  if (child == 0) ::_exit(work());
  int status = 0;
  ::waitpid(child, &status, 0);
  return WIFEXITED(status) ? WEXITSTATUS(status) : -1;
}

// The same for a user who owns nothing here.
int StatusAsNobody(const std::function<int()>& work) {
  return StatusOfChild([&] {
    if (::setgroups(0, nullptr) != 0 || ::setgid(kNobody) != 0 || ::setuid(kNobody) != 0) {
      return kNotPossibleHere;
    }
    return work();
  });
}

// 0 where writing that file ends in that error, and the error's line names the file.
int NamesTheFile(const std::string& path, int number, const std::function<void()>& write) {
  try {
    write();
  } catch (const modAllPurpose::RuntimeError& error) {
    return static_cast<int>(error.Number()) == number && error.About() == path ? 0 : 1;
  }
  return 2;
}

class PosixFiles : public testing::Test {
 protected:
  std::string Path(const std::string& name) const { return (folder_ / name).string(); }

  void Put(const std::string& name, mode_t mode) const {
    std::ofstream(folder_ / name) << "old";
    ASSERT_EQ(::chmod(Path(name).c_str(), mode), 0);
  }

  struct stat StatusOf(const std::string& name) const {
    struct stat status {};
    EXPECT_EQ(::stat(Path(name).c_str(), &status), 0);
    return status;
  }

  mode_t ModeOf(const std::string& name) const {
    return StatusOf(name).st_mode & ~static_cast<mode_t>(S_IFMT);
  }

  std::ptrdiff_t NamesInFolder() const {
    return std::distance(fs::directory_iterator(folder_.Path()), fs::directory_iterator());
  }

  tests::TemporaryFolder folder_;
};

TEST_F(PosixFiles, ALinkIsFollowedToTheRegularFileItNames) {
  fs::create_directory(folder_ / "elsewhere");
  Put("elsewhere/file", 0644);
  fs::create_symlink("elsewhere/file", folder_ / "link");
  WriteFileInOneStep(Path("link"), "new");
  EXPECT_TRUE(fs::is_symlink(folder_ / "link"));
  EXPECT_EQ(ReadWholeFile(folder_ / "elsewhere" / "file"), "new");
}

TEST_F(PosixFiles, ALinkThatLeadsNowhereIsNeitherReplacedNorFollowed) {
  fs::create_symlink("nowhere", folder_ / "link");
  EXPECT_EQ(ErrorNumberOf([&] { WriteFileInOneStep(Path("link"), "new"); }), kPathFileAccessError);
  EXPECT_FALSE(WriteFileWhereFree(Path("link"), "new"));
  EXPECT_TRUE(fs::is_symlink(folder_ / "link"));
  EXPECT_EQ(NamesInFolder(), 1);
}

TEST_F(PosixFiles, APipeStaysOneAndIsNotWaitedFor) {
  ASSERT_EQ(::mkfifo(Path("pipe").c_str(), 0600), 0);
  fs::create_symlink("pipe", folder_ / "link");
  for (const std::string name : {"pipe", "link"}) {
    EXPECT_EQ(ErrorNumberOf([&] { WriteFileInOneStep(Path(name), "new"); }), kPathFileAccessError)
        << name;
  }
  EXPECT_TRUE(fs::is_fifo(folder_ / "pipe"));
  EXPECT_EQ(NamesInFolder(), 2);
}

TEST_F(PosixFiles, ADeviceBehindALinkIsNoRegularFile) {
  fs::create_symlink("/dev/null", folder_ / "link");
  EXPECT_EQ(ErrorNumberOf([&] { WriteFileInOneStep(Path("link"), "new"); }), kPathFileAccessError);
}

TEST_F(PosixFiles, ANewFileHasTheRightsOfAnyNewFile) {
  const int status = StatusOfChild([&] {
    ::umask(0027);
    return WriteFileWhereFree(Path("file"), "text") ? 0 : 1;
  });
  ASSERT_EQ(status, 0);
  EXPECT_EQ(ModeOf("file"), mode_t{0640});
}

TEST_F(PosixFiles, AReplacedFileKeepsItsMode) {
  for (const mode_t mode : {mode_t{0600}, mode_t{0664}, mode_t{0755}, mode_t{04750}}) {
    Put("file", mode);
    WriteFileInOneStep(Path("file"), "new");
    EXPECT_EQ(ModeOf("file"), mode) << std::oct << mode;
  }
}

TEST_F(PosixFiles, AReplacedFileKeepsItsOwnerAndGroup) {
  constexpr uid_t kOwner = 1234;
  constexpr gid_t kGroup = 5678;
  Put("file", 0640);
  if (::chown(Path("file").c_str(), kOwner, kGroup) != 0) GTEST_SKIP() << "not for this user";
  ASSERT_EQ(::chmod(Path("file").c_str(), 06750), 0);
  WriteFileInOneStep(Path("file"), "new");
  EXPECT_EQ(StatusOf("file").st_uid, kOwner);
  EXPECT_EQ(StatusOf("file").st_gid, kGroup);
  EXPECT_EQ(ModeOf("file"), mode_t{06750});
}

TEST_F(PosixFiles, WhatCannotBeKeptOpensTheFileToNobody) {
  fs::permissions(folder_.Path(), fs::perms::all);
  struct Row {
    mode_t Before;
    mode_t After;
  };
  for (const auto& [before, after] :
       {Row{0666, 0666}, Row{0606, 0600}, Row{0676, 0666}, Row{0466, 0444}, Row{06777, 0777}}) {
    fs::remove(folder_ / "file");
    Put("file", before);
    const int status = StatusAsNobody(
        [&] { return ErrorNumberOf([&] { WriteFileInOneStep(Path("file"), "new"); }); });
    if (status == kNotPossibleHere) GTEST_SKIP() << "not for this user";
    ASSERT_EQ(status, 0);
    EXPECT_EQ(StatusOf("file").st_uid, kNobody);
    EXPECT_EQ(ModeOf("file"), after) << std::oct << before;
  }
}

TEST_F(PosixFiles, ANewOneIsItsOwnersAloneUntilItHasTheRightsOfTheOld) {
  for (const auto named : {FileInWaiting::Named::WhereItMust, FileInWaiting::Named::Always}) {
    Put("file", 0666);
    const auto old = modAllPurpose::FindFileToReplace(folder_ / "file");
    ASSERT_TRUE(old);
    givenFiles.clear();
    const FileInWaiting file(folder_.Path(), "the new text", &*old, named);
    ASSERT_FALSE(givenFiles.empty()) << "the first that it gets is its group";
    for (const auto& [mode, size] : givenFiles) EXPECT_EQ(mode, mode_t{0600}) << std::oct << mode;
    EXPECT_EQ(givenFiles.front().Size, 12);
  }
}

TEST_F(PosixFiles, AFileThatMayNotBeWrittenIsNamed) {
  Put("file", 0444);
  for (const std::string name : {"file", "new"}) {
    const std::string path = Path(name);
    const int status = StatusAsNobody([&] {
      return NamesTheFile(path, tests::kPermissionDenied, [&] { WriteFileInOneStep(path, "new"); });
    });
    if (status == kNotPossibleHere) GTEST_SKIP() << "not for this user";
    EXPECT_EQ(status, 0) << name;
  }
}

TEST_F(PosixFiles, AFileThatTheDiskCannotTakeIsNamed) {
  const std::string path = Path("file");
  const int status = StatusOfChild([&] {
    std::signal(SIGXFSZ, SIG_IGN);
    const rlimit limit{2, 2};
    if (::setrlimit(RLIMIT_FSIZE, &limit) != 0) return kNotPossibleHere;
    return NamesTheFile(path, tests::kDiskFull, [&] { (void)WriteFileWhereFree(path, "new"); });
  });
  EXPECT_EQ(status, 0);
  EXPECT_EQ(NamesInFolder(), 0);
}

// An access list that lets the user 1234 write, in the form in which Linux keeps it.
std::vector<std::uint8_t> ListForOneMore() {
  const auto entry = [](std::uint8_t tag, std::uint8_t rights, std::vector<std::uint8_t> who) {
    std::vector<std::uint8_t> bytes = {tag, 0, rights, 0};
    bytes.insert(bytes.end(), who.begin(), who.end());
    return bytes;
  };
  const std::vector<std::uint8_t> nobody(4, 0xFF);
  std::vector<std::uint8_t> list = {2, 0, 0, 0};
  for (const auto& bytes :
       {entry(0x01, 6, nobody), entry(0x02, 6, {0xD2, 0x04, 0, 0}), entry(0x04, 0, nobody),
        entry(0x10, 6, nobody), entry(0x20, 0, nobody)}) {
    list.insert(list.end(), bytes.begin(), bytes.end());
  }
  return list;
}

bool SetList(const std::string& path, const char* kind) {
  const auto list = ListForOneMore();
  return ::setxattr(path.c_str(), kind, list.data(), list.size(), 0) == 0;
}

std::vector<std::uint8_t> ListOf(const std::string& path) {
  std::vector<std::uint8_t> list(1000);
  const auto size = ::getxattr(path.c_str(), "system.posix_acl_access", list.data(), list.size());
  list.resize(size < 0 ? 0 : static_cast<std::size_t>(size));
  return list;
}

TEST_F(PosixFiles, AReplacedFileKeepsItsAccessList) {
  Put("file", 0600);
  if (!SetList(Path("file"), "system.posix_acl_access")) GTEST_SKIP() << "no access lists here";
  WriteFileInOneStep(Path("file"), "new");
  EXPECT_EQ(ListOf(Path("file")), ListForOneMore());
  EXPECT_EQ(ModeOf("file"), mode_t{0660});
}

TEST_F(PosixFiles, AReplacedFileGetsNoAccessListFromItsFolder) {
  Put("file", 0664);
  if (!SetList(folder_.Path().string(), "system.posix_acl_default")) {
    GTEST_SKIP() << "no access lists here";
  }
  WriteFileInOneStep(Path("file"), "new");
  EXPECT_TRUE(ListOf(Path("file")).empty());
  EXPECT_EQ(ModeOf("file"), mode_t{0664});
}

TEST_F(PosixFiles, AnAccessListThatCannotBeKeptLeavesTheFileToItsOwner) {
  fs::permissions(folder_.Path(), fs::perms::all);
  Put("file", 0600);
  auto list = ListForOneMore();
  list[list.size() - 6] = 6;  // for all others
  if (::setxattr(Path("file").c_str(), "system.posix_acl_access", list.data(), list.size(), 0) !=
      0) {
    GTEST_SKIP() << "no access lists here";
  }
  ASSERT_EQ(ModeOf("file"), mode_t{0666});
  const int status = StatusAsNobody(
      [&] { return ErrorNumberOf([&] { WriteFileInOneStep(Path("file"), "new"); }); });
  if (status == kNotPossibleHere) GTEST_SKIP() << "not for this user";
  ASSERT_EQ(status, 0);
  EXPECT_TRUE(ListOf(Path("file")).empty());
  EXPECT_EQ(ModeOf("file"), mode_t{0600});
}

}  // namespace
