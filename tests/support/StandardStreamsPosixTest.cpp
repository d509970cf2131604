// SPDX-License-Identifier: GPL-3.0-or-later

#include <fcntl.h>
#include <sys/wait.h>
#include <unistd.h>

#include <gtest/gtest.h>

#include "support/StandardStreams.h"

// Programs that are started without some of their standard streams.
namespace {

constexpr int kFailed = 99;

// The number that the next file of a process gets which keeps the places of its standard streams
// and was started without those from `first` to `last`; kFailed where one of them can be written.
int NextFileWithout(int first, int last) {
  const pid_t child = ::fork();
  if (child == 0) {
    for (int stream = first; stream <= last; ++stream) ::close(stream);
    modAllPurpose::KeepPlacesOfStandardStreams();
    for (int stream = first; stream <= last; ++stream) {
      if (::write(stream, "x", 1) >= 0) ::_exit(kFailed);
    }
    ::_exit(::open("/dev/null", O_WRONLY | O_CLOEXEC));
  }
  int status = 0;
  ::waitpid(child, &status, 0);
  return WIFEXITED(status) ? WEXITSTATUS(status) : -1;
}

TEST(StandardStreams, ThatAreMissingLeaveTheirPlacesToNoFile) {
  const int next = ::open("/dev/null", O_WRONLY | O_CLOEXEC);
  ::close(next);
  EXPECT_EQ(NextFileWithout(STDOUT_FILENO, STDOUT_FILENO), next);
  EXPECT_EQ(NextFileWithout(STDERR_FILENO, STDERR_FILENO), next);
  EXPECT_EQ(NextFileWithout(STDIN_FILENO, STDERR_FILENO), next);
}

TEST(StandardStreams, ThatAreThereStayAsTheyAre) {
  const int next = ::open("/dev/null", O_WRONLY | O_CLOEXEC);
  ::close(next);
  EXPECT_EQ(NextFileWithout(1, 0), next);
}

}  // namespace
