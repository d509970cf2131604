// SPDX-License-Identifier: GPL-3.0-or-later

#include <filesystem>
#include <fstream>
#include <functional>
#include <string>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

#include <gtest/gtest.h>

#include "c3d/BinaryFile.h"
#include "c3d/OpenC3dFile.h"
#include "tests/TestTrials.h"

// What a POSIX system keeps in its folders besides files, and who may read them there.
namespace {

using modVantrel::BinaryFile;
using tests::ErrorNumberOf;

using tests::kPathFileAccessError;
using tests::kPermissionDenied;

class UnreadableFile : public testing::Test {
 protected:
  tests::TemporaryFolder folder_;
  std::filesystem::path path_ = folder_ / "file";
};

TEST_F(UnreadableFile, APipeThatNobodyWritesToIsRefusedAtOnce) {
  ASSERT_EQ(::mkfifo(path_.c_str(), 0600), 0);
  EXPECT_EQ(ErrorNumberOf([this] { BinaryFile().Open(path_.string()); }), kPathFileAccessError);
}

TEST_F(UnreadableFile, ADeviceIsRefused) {
  EXPECT_EQ(ErrorNumberOf([] { BinaryFile().Open("/dev/null"); }), kPathFileAccessError);
}

// What `work` returns in a process of its own, which has lost the rights of the super-user.
int InUnprivilegedProcess(const std::function<int()>& work) {
  constexpr uid_t kNobody = 65534;
  const pid_t child = ::fork();
  if (child == 0) {
    if (::getuid() == 0 && ::setuid(kNobody) != 0) ::_exit(255);
    ::_exit(work());
  }
  int status = 0;
  ::waitpid(child, &status, 0);
  return WIFEXITED(status) ? WEXITSTATUS(status) : -1;
}

TEST_F(UnreadableFile, AFileThatMayNotBeReadIsError70) {
  std::ofstream(path_) << "text";
  std::filesystem::permissions(path_, std::filesystem::perms::none);
  const int number = InUnprivilegedProcess(
      [this] { return ErrorNumberOf([this] { BinaryFile().Open(path_.string()); }); });
  EXPECT_EQ(number, kPermissionDenied);
}

TEST_F(UnreadableFile, AFileThatMayNotBeReadOpensWithResult1) {
  sample::TrialBuilder().Build().WriteTo(path_);
  const auto open = [this] {
    modVantrel::FileState state;
    return static_cast<int>(modVantrel::OpenC3dFile(state, path_.string(), tests::NoEvents));
  };
  EXPECT_EQ(InUnprivilegedProcess(open), 0) << "while it may be read";
  std::filesystem::permissions(path_, std::filesystem::perms::none);
  EXPECT_EQ(InUnprivilegedProcess(open), 1);
}

}  // namespace
