// SPDX-License-Identifier: GPL-3.0-or-later

#include <array>
#include <cerrno>
#include <cstddef>
#include <filesystem>
#include <fstream>
#include <functional>
#include <linux/filter.h>
#include <linux/seccomp.h>
#include <sched.h>
#include <string>
#include <sys/mount.h>
#include <sys/prctl.h>
#include <sys/syscall.h>
#include <sys/wait.h>
#include <unistd.h>
#include <vector>

#include <gtest/gtest.h>

#include "support/FileInWaiting.h"
#include "support/WholeFiles.h"
#include "tests/ErrorNumbers.h"
#include "tests/TestTrials.h"

// Files that are written where the system refuses one of its calls. Each is tried in a process of
// its own, since that stays so.
namespace {

namespace fs = std::filesystem;
using modAllPurpose::FileInWaiting;

constexpr int kCannotRefuse = 200;
constexpr int kAsWanted = 0;
constexpr int kNotAsWanted = 201;
constexpr int kDeviceIoError = 57;

// Lets the call of that number fail from now on.
bool Refuse(unsigned call, int systemError) {
  const auto failure = SECCOMP_RET_ERRNO | static_cast<unsigned>(systemError);
  std::array<sock_filter, 4> steps = {
      sock_filter BPF_STMT(BPF_LD | BPF_W | BPF_ABS, offsetof(seccomp_data, nr)),
      sock_filter BPF_JUMP(BPF_JMP | BPF_JEQ | BPF_K, call, 0, 1),
      sock_filter BPF_STMT(BPF_RET | BPF_K, failure),
      sock_filter BPF_STMT(BPF_RET | BPF_K, SECCOMP_RET_ALLOW)};
  const sock_fprog program{steps.size(), steps.data()};
  return ::prctl(PR_SET_NO_NEW_PRIVS, 1, 0, 0, 0) == 0 &&
         ::prctl(PR_SET_SECCOMP, SECCOMP_MODE_FILTER, &program) == 0;
}

// Takes the names away that the system has for open files.
bool HideOpenFiles() {
  return ::unshare(CLONE_NEWNS) == 0 &&
         ::mount("none", "/", nullptr, MS_REC | MS_PRIVATE, nullptr) == 0 &&
         ::mount("none", "/proc", "tmpfs", 0, nullptr) == 0;
}

// What a process ends with that does `work` and nothing else.
int StatusOfRefused(const std::function<int()>& work) {
  const pid_t child = ::fork();
  if (child == 0) ::_exit(work());
  int status = 0;
  ::waitpid(child, &status, 0);
  return WIFEXITED(status) ? WEXITSTATUS(status) : -1;
}

class RefusingSystem : public testing::Test {
 protected:
  void SetUp() override { std::ofstream(folder_ / "old") << "old"; }

  std::string Path(const std::string& name) const { return (folder_ / name).string(); }

  // Whether the folder holds the old file, as it was, and `others` besides.
  void ExpectTheOldFileAnd(std::ptrdiff_t others) const {
    EXPECT_EQ(tests::ReadWholeFile(folder_ / "old"), "old");
    EXPECT_EQ(std::distance(fs::directory_iterator(folder_.Path()), {}), others + 1);
  }

  tests::TemporaryFolder folder_;
};

struct Refusal {
  unsigned Call;
  int SystemError;
  int Number;  // of the run-time error that it is
};

TEST_F(RefusingSystem, ThatCannotBringAFileToDiskGivesItNoName) {
  for (const Refusal& refusal :
       {Refusal{SYS_fsync, EIO, kDeviceIoError}, Refusal{SYS_fsync, EDQUOT, tests::kDiskFull},
        Refusal{SYS_write, EDQUOT, tests::kDiskFull}}) {
    const auto statusOf = [&](const std::function<void()>& work) {
      return StatusOfRefused([&] {
        if (!Refuse(refusal.Call, refusal.SystemError)) return kCannotRefuse;
        return tests::ErrorNumberOf(work);
      });
    };
    const int replacing = statusOf([&] { modAllPurpose::WriteFileInOneStep(Path("old"), "new"); });
    if (replacing == kCannotRefuse) GTEST_SKIP() << "no call can be refused here";
    EXPECT_EQ(replacing, refusal.Number);
    EXPECT_EQ(statusOf([&] { (void)modAllPurpose::WriteFileWhereFree(Path("new"), "new"); }),
              refusal.Number);
    ExpectTheOldFileAnd(0);
  }
}

TEST_F(RefusingSystem, ThatCannotRenameToAFreeNameAloneReplacesNothing) {
  const int status = StatusOfRefused([&] {
    if (!Refuse(SYS_renameat2, EINVAL)) return kCannotRefuse;
    FileInWaiting file(folder_.Path(), "new", nullptr, FileInWaiting::Named::Always);
    if (file.TakeNameIfFree(folder_ / "old")) return kNotAsWanted;
    return file.TakeNameIfFree(folder_ / "new") ? kAsWanted : kNotAsWanted;
  });
  if (status == kCannotRefuse) GTEST_SKIP() << "no call can be refused here";
  EXPECT_EQ(status, kAsWanted);
  ExpectTheOldFileAnd(1);
}

TEST_F(RefusingSystem, ThatHasNoNamesForOpenFilesWritesThemAllTheSame) {
  const int status = StatusOfRefused([&] {
    if (!HideOpenFiles()) return kCannotRefuse;
    return tests::ErrorNumberOf([&] {
      (void)modAllPurpose::WriteFileWhereFree(Path("new"), "new");
      modAllPurpose::WriteFileInOneStep(Path("new"), "newer");
    });
  });
  if (status == kCannotRefuse) GTEST_SKIP() << "only root can hide them";
  EXPECT_EQ(status, kAsWanted);
  EXPECT_EQ(tests::ReadWholeFile(folder_ / "new"), "newer");
  ExpectTheOldFileAnd(1);
}

// A folder for everybody, such as that for temporary files, in which the second of two names is
// that of another user's file: anybody may write it, and nobody else may give its name to another
// one.
TEST_F(RefusingSystem, ThatKeepsANameForItsOwnerIsAskedBeforeAnythingIsReplaced) {
  if (::geteuid() != 0) GTEST_SKIP() << "only root can be somebody else";
  fs::permissions(folder_.Path(), fs::perms::all | fs::perms::sticky_bit);
  fs::permissions(folder_ / "old", fs::perms::all);
  const std::vector<modAllPurpose::WholeFile> files = {{Path("a"), "new"}, {Path("old"), "new"}};
  const int status = StatusOfRefused([&] {
    constexpr uid_t kNobody = 65534;
    if (::setgid(kNobody) != 0 || ::setuid(kNobody) != 0) return kCannotRefuse;
    return tests::ErrorNumberOf([&] { modAllPurpose::WriteFilesTogether(files); });
  });
  EXPECT_EQ(status, tests::kPermissionDenied);
  ExpectTheOldFileAnd(0);
  modAllPurpose::WriteFilesTogether(files);
  EXPECT_EQ(tests::ReadWholeFile(folder_ / "old"), "new") << "its owner may";
}

}  // namespace
