// SPDX-License-Identifier: GPL-3.0-or-later

#include <csignal>
#include <filesystem>
#include <fstream>
#include <functional>
#include <sched.h>
#include <string>
#include <sys/mount.h>
#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>
#include <vector>

#include <gtest/gtest.h>

#include "gait/EventExtraction.h"
#include "gait/GcdCommand.h"
#include "tests/GaitTrials.h"

// Files that cannot be written. What would bind the whole program, lesser rights or a limit, is
// tried in a process of its own.
namespace {

using namespace modVantrel;
using tests::NamesIn;
using tests::OpenedWalk;
using tests::ReadWholeFile;
using tests::TemporaryFolder;

using tests::kDiskFull;
using tests::kPermissionDenied;
constexpr int kNotPossibleHere = 200;
constexpr int kOldFileChanged = 201;

// What a child process ends with that runs `work` and nothing else.
int StatusOfChild(const std::function<int()>& work) {
  const pid_t child = fork();
  if (child == 0) _exit(work());
  int status = 0;
  if (child < 0 || waitpid(child, &status, 0) != child || !WIFEXITED(status)) return -1;
  return WEXITSTATUS(status);
}

class OverwriteAll : public OverwriteQuestion {
 public:
  OverwriteAnswer Ask(const std::string& /*gcdFileName*/) override {
    return OverwriteAnswer::YesToAll;
  }
};

// The number of the error that writing the GCD files into `folder` ends in.
int ErrorOfWritingInto(const std::filesystem::path& folder, const FileState& state) {
  GcdOptions options;
  options.OutputFolder = folder.string();
  OverwriteAll question;
  modAllPurpose::TextReport output;
  return tests::ErrorNumberOf([&] { (void)WriteGcdFiles(state, options, question, output); });
}

sample::Trial TrialWithCurves() {
  sample::TrialBuilder builder = tests::WholeFrameTrial();
  for (const std::string label : {"LTrunkAngles", "LPelvisAngles", "LHipAngles", "LKneeAngles"}) {
    builder.AddPoint(label, tests::Moving({}, {0.123456F, 4.567891F, -8.912345F}));
  }
  return builder.Build();
}

class GcdFailure : public testing::Test {
 protected:
  GcdFailure() { std::ofstream(old_) << "old"; }

  void ExpectOnlyTheOldFile() const {
    EXPECT_EQ(NamesIn(folder_.Path()), std::vector<std::string>{"trial-L1.gcd"});
    EXPECT_EQ(ReadWholeFile(old_), "old");
  }

  OpenedWalk walk_{TrialWithCurves(), FindGaitEvents};
  TemporaryFolder folder_;
  std::filesystem::path old_ = folder_ / "trial-L1.gcd";
};

TEST_F(GcdFailure, FolderThatMayNotBeWrittenToIsPermissionDenied) {
  namespace fs = std::filesystem;
  fs::permissions(folder_.Path(), fs::perms::owner_read | fs::perms::owner_exec |
                                      fs::perms::others_read | fs::perms::others_exec);
  const int status = StatusOfChild([&] {
    constexpr uid_t kNobody = 65534;
    if (geteuid() == 0 && (setgid(kNobody) != 0 || setuid(kNobody) != 0)) return kNotPossibleHere;
    return ErrorOfWritingInto(folder_.Path(), walk_.State());
  });
  fs::permissions(folder_.Path(), fs::perms::owner_all);
  EXPECT_EQ(status, kPermissionDenied);
  ExpectOnlyTheOldFile();
}

TEST_F(GcdFailure, FileThatMayNotBeWrittenIsNotReplaced) {
  namespace fs = std::filesystem;
  fs::permissions(folder_.Path(), fs::perms::all);
  fs::permissions(old_, fs::perms::owner_read | fs::perms::others_read);
  const int status = StatusOfChild([&] {
    constexpr uid_t kNobody = 65534;
    if (geteuid() == 0 && (setgid(kNobody) != 0 || setuid(kNobody) != 0)) return kNotPossibleHere;
    return ErrorOfWritingInto(folder_.Path(), walk_.State());
  });
  fs::permissions(folder_.Path(), fs::perms::owner_all);
  EXPECT_EQ(status, kPermissionDenied);
  ExpectOnlyTheOldFile();
}

// It may be a trial.
TEST_F(GcdFailure, FileThatMayNotBeReadIsNotReplaced) {
  namespace fs = std::filesystem;
  fs::permissions(folder_.Path(), fs::perms::all);
  const int status = StatusOfChild([&] {
    constexpr uid_t kNobody = 65534;
    const bool isRoot = geteuid() == 0;
    if (isRoot && ::chown(old_.c_str(), kNobody, kNobody) != 0) return kNotPossibleHere;
    fs::permissions(old_, fs::perms::owner_write);
    if (isRoot && (setgid(kNobody) != 0 || setuid(kNobody) != 0)) return kNotPossibleHere;
    return ErrorOfWritingInto(folder_.Path(), walk_.State());
  });
  fs::permissions(old_, fs::perms::owner_read | fs::perms::owner_write);
  fs::permissions(folder_.Path(), fs::perms::owner_all);
  EXPECT_EQ(status, kPermissionDenied);
  ExpectOnlyTheOldFile();
}

TEST_F(GcdFailure, LinkIsFollowedToTheFileItNames) {
  namespace fs = std::filesystem;
  fs::rename(old_, folder_ / "elsewhere.gcd");
  fs::create_symlink("elsewhere.gcd", old_);
  EXPECT_EQ(ErrorOfWritingInto(folder_.Path(), walk_.State()), 0);
  EXPECT_TRUE(fs::is_symlink(old_));
  EXPECT_TRUE(ReadWholeFile(folder_ / "elsewhere.gcd").starts_with("#!DST-0.1"));
}

// The window asks about the link as about any file, and the answer replaces nothing.
TEST_F(GcdFailure, LinkThatLeadsNowhereCountsAsExistingAndIsRefused) {
  class Counting : public OverwriteAll {
   public:
    OverwriteAnswer Ask(const std::string& gcdFileName) override {
      ++Times;
      return OverwriteAll::Ask(gcdFileName);
    }
    int Times = 0;
  } question;
  std::filesystem::remove(old_);
  std::filesystem::create_symlink("nowhere", old_);
  GcdOptions options;
  options.OutputFolder = folder_.Path().string();
  modAllPurpose::TextReport output;
  EXPECT_EQ(
      tests::ErrorNumberOf([&] { (void)WriteGcdFiles(walk_.State(), options, question, output); }),
      75);
  EXPECT_EQ(question.Times, 1);
  EXPECT_EQ(NamesIn(folder_.Path()), std::vector<std::string>{"trial-L1.gcd"});
  EXPECT_TRUE(std::filesystem::is_symlink(old_));
}

TEST_F(GcdFailure, LinkToATrialIsNotFollowed) {
  std::filesystem::remove(old_);
  std::filesystem::create_symlink(walk_.File(), old_);
  const std::string trial = ReadWholeFile(walk_.File());
  EXPECT_EQ(ErrorOfWritingInto(folder_.Path(), walk_.State()), 75);
  EXPECT_TRUE(ReadWholeFile(walk_.File()) == trial);
}

TEST_F(GcdFailure, FileBeyondTheSizeLimitIsDiskFull) {
  const int status = StatusOfChild([&] {
    std::signal(SIGXFSZ, SIG_IGN);
    const rlimit limit{2000, 2000};
    if (setrlimit(RLIMIT_FSIZE, &limit) != 0) return kNotPossibleHere;
    return ErrorOfWritingInto(folder_.Path(), walk_.State());
  });
  EXPECT_EQ(status, kDiskFull);
  ExpectOnlyTheOldFile();
}

// A disk of two pages, mounted for one process alone.
TEST_F(GcdFailure, FullDiskLeavesTheOldFileAsItWas) {
  const int status = StatusOfChild([&] {
    if (unshare(CLONE_NEWNS) != 0 && unshare(CLONE_NEWUSER | CLONE_NEWNS) != 0) {
      return kNotPossibleHere;
    }
    mount("none", "/", nullptr, MS_REC | MS_PRIVATE, nullptr);
    if (mount("tmpfs", folder_.Path().c_str(), "tmpfs", 0, "size=8k") != 0) return kNotPossibleHere;
    std::ofstream(old_) << "old";
    const int error = ErrorOfWritingInto(folder_.Path(), walk_.State());
    const bool asBefore = ReadWholeFile(old_) == "old" &&
                          NamesIn(folder_.Path()) == std::vector<std::string>{"trial-L1.gcd"};
    return asBefore ? error : kOldFileChanged;
  });
  if (status == kNotPossibleHere) GTEST_SKIP() << "this user may not mount a small disk";
  EXPECT_EQ(status, kDiskFull);
}

TEST_F(GcdFailure, LimitsAsideTheSameFilesAreWritten) {
  EXPECT_EQ(ErrorOfWritingInto(folder_.Path(), walk_.State()), 0);
  EXPECT_GT(std::filesystem::file_size(old_), 2U * 4096U) << "more than the disk above takes";
}

}  // namespace
