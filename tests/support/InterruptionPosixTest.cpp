// SPDX-License-Identifier: GPL-3.0-or-later

#include <atomic>
#include <chrono>
#include <csignal>
#include <filesystem>
#include <functional>
#include <future>
#include <mutex>
#include <sched.h>
#include <string>
#include <sys/wait.h>
#include <thread>
#include <unistd.h>
#include <utility>
#include <vector>

#include <gtest/gtest.h>

#include "support/FileInWaiting.h"
#include "support/Interruption.h"
#include "support/WholeFiles.h"
#include "tests/TestTrials.h"

// Programs that are interrupted or killed while they write.
namespace {

namespace fs = std::filesystem;
using modAllPurpose::FileInWaiting;
using modAllPurpose::LetInterruptionsWait;
using modAllPurpose::UnbrokenWork;
using modAllPurpose::WholeFile;

constexpr int kWentOn = 99;

// How a process ended.
struct Ending {
  int Signal;
  int Status;
};

// How a process ends that does `work` and nothing else, within a minute.
Ending EndOf(const std::function<void()>& work) {
  const pid_t child = ::fork();
  if (child == 0) {
    ::alarm(60);
    work();
    ::_exit(kWentOn);
  }
  int status = 0;
  ::waitpid(child, &status, 0);
  return {WIFSIGNALED(status) ? WTERMSIG(status) : 0, WIFEXITED(status) ? WEXITSTATUS(status) : -1};
}

class Interruption : public testing::Test {
 protected:
  tests::TemporaryFolder folder_;
};

TEST_F(Interruption, WaitsForTheEndOfTheWorkAndThenEndsTheProgramAsItself) {
  for (const int signal : {SIGINT, SIGTERM, SIGHUP, SIGQUIT}) {
    for (const bool prepared : {false, true}) {
      const Ending end = EndOf([&] {
        if (prepared) LetInterruptionsWait();
        const UnbrokenWork work;
        const FileInWaiting file(folder_.Path(), "text", nullptr, FileInWaiting::Named::Always);
        std::raise(signal);
        if (!UnbrokenWork::IsInterrupted()) ::_exit(1);
      });
      EXPECT_EQ(end.Signal, signal) << prepared << ' ' << end.Status;
      EXPECT_TRUE(fs::is_empty(folder_.Path()));
    }
  }
}

TEST_F(Interruption, OfAProgramThatIsWritingNothingEndsItAtOnce) {
  EXPECT_EQ(EndOf([] {
              LetInterruptionsWait();
              std::raise(SIGTERM);
            }).Signal,
            SIGTERM);
}

TEST_F(Interruption, ThatTheProgramIsToIgnoreIsIgnored) {
  const Ending end = EndOf([] {
    std::signal(SIGHUP, SIG_IGN);
    LetInterruptionsWait();
    std::raise(SIGHUP);
    {
      const UnbrokenWork work;
      std::raise(SIGHUP);
      if (UnbrokenWork::IsInterrupted()) ::_exit(1);
    }
  });
  EXPECT_EQ(end.Status, kWentOn);
}

TEST_F(Interruption, WaitsForTheWorkOfAnotherThread) {
  const Ending end = EndOf([&] {
    LetInterruptionsWait();
    std::thread([&] {
      const UnbrokenWork work;
      const FileInWaiting file(folder_.Path(), "text", nullptr, FileInWaiting::Named::Always);
      ::kill(::getpid(), SIGINT);  // met by the thread that waits for this one
      std::this_thread::sleep_for(std::chrono::milliseconds(50));
    }).join();
  });
  EXPECT_EQ(end.Signal, SIGINT);
  EXPECT_TRUE(fs::is_empty(folder_.Path()));
}

TEST_F(Interruption, DoesNotWaitForWorkThatOnlyWaits) {
  const Ending end = EndOf([&] {
    LetInterruptionsWait();
    const UnbrokenWork work;
    const modAllPurpose::InterruptibleWait wait;
    std::raise(SIGINT);
  });
  EXPECT_EQ(end.Signal, SIGINT);
}

TEST_F(Interruption, WaitsAgainForWorkThatHasWaited) {
  const Ending end = EndOf([&] {
    LetInterruptionsWait();
    const UnbrokenWork work;
    { const modAllPurpose::InterruptibleWait wait; }
    std::raise(SIGINT);
    ::_exit(UnbrokenWork::IsInterrupted() ? kWentOn : 1);
  });
  EXPECT_EQ(end.Status, kWentOn);
}

TEST_F(Interruption, MetByAWorkThatOnlyWaitsWaitsForThatOfAnotherThread) {
  const Ending end = EndOf([&] {
    LetInterruptionsWait();
    const UnbrokenWork work;
    std::thread other([&] {
      const UnbrokenWork unbroken;
      const FileInWaiting file(folder_.Path(), "text", nullptr, FileInWaiting::Named::Always);
      ::kill(::getpid(), SIGINT);
      std::this_thread::sleep_for(std::chrono::milliseconds(50));
    });
    const modAllPurpose::InterruptibleWait wait;
    other.join();
  });
  EXPECT_EQ(end.Signal, SIGINT);
  EXPECT_TRUE(fs::is_empty(folder_.Path()));
}

TEST_F(Interruption, MetByAThreadThatHoldsWhatAWorkNeedsLetsItGoOn) {
  const Ending end = EndOf([] {
    LetInterruptionsWait();
    std::mutex needed;
    std::atomic<bool> isHeld = false;
    std::atomic<bool> isUnderWay = false;
    std::thread other([&] {
      const std::lock_guard lock(needed);
      isHeld = true;
      isHeld.notify_one();
      isUnderWay.wait(false);
      std::raise(SIGTERM);
    });
    isHeld.wait(false);
    const UnbrokenWork work;
    isUnderWay = true;
    isUnderWay.notify_one();
    const std::lock_guard lock(needed);
  });
  EXPECT_EQ(end.Signal, SIGTERM);
}

// A work in a thread of its own that lasts for a moment and is under way when this returns.
void WorkForAMomentElsewhere() {
  std::promise<void> begun;
  const std::future<void> isUnderWay = begun.get_future();
  std::thread([begun = std::move(begun)]() mutable {
    const UnbrokenWork work;
    begun.set_value();
    std::this_thread::sleep_for(std::chrono::milliseconds(50));
  }).detach();
  isUnderWay.wait();
}

TEST_F(Interruption, ThatWaitedForAWorkLetsNothingBehindItHappen) {
  const Ending end = EndOf([] {
    LetInterruptionsWait();
    WorkForAMomentElsewhere();
    {
      const UnbrokenWork work;
      std::raise(SIGTERM);
    }
    ::_exit(kWentOn);
  });
  EXPECT_EQ(end.Signal, SIGTERM);
}

TEST_F(Interruption, ThatWaitedForAWorkLetsNothingOfItsWaitHappen) {
  const Ending end = EndOf([] {
    LetInterruptionsWait();
    WorkForAMomentElsewhere();
    const UnbrokenWork work;
    std::raise(SIGTERM);
    const modAllPurpose::InterruptibleWait wait;
    ::_exit(kWentOn);
  });
  EXPECT_EQ(end.Signal, SIGTERM);
}

TEST_F(Interruption, BehindAnotherDoesNotChangeHowTheProgramEnds) {
  const Ending end = EndOf([] {
    LetInterruptionsWait();
    WorkForAMomentElsewhere();
    std::raise(SIGTERM);
    std::raise(SIGINT);
    for (;;) ::pause();
  });
  EXPECT_EQ(end.Signal, SIGTERM);
}

// Becomes the parent of the first process of a container; false where that is not allowed.
bool StartContainer() {
  return ::unshare(CLONE_NEWPID) == 0 || ::unshare(CLONE_NEWUSER | CLONE_NEWPID) == 0;
}

TEST_F(Interruption, EndsTheFirstProcessOfAContainerWithTheStatusOfAShell) {
  constexpr int kNotAllowed = 98;
  const Ending end = EndOf([] {
    if (!StartContainer()) ::_exit(kNotAllowed);
    const Ending first = EndOf([] {
      LetInterruptionsWait();
      std::raise(SIGTERM);
    });
    ::_exit(first.Signal == 0 ? first.Status : 0);
  });
  if (end.Status == kNotAllowed) GTEST_SKIP() << "no containers can be made here";
  EXPECT_EQ(end.Status, 128 + SIGTERM);
}

TEST_F(Interruption, OfASetOfFilesLeavesNoneOfThem) {
  const std::vector<WholeFile> files = {{(folder_ / "a").string(), "text"},
                                        {(folder_ / "b").string(), "text"}};
  const Ending end = EndOf([&] {
    const UnbrokenWork work;
    std::raise(SIGTERM);
    if (tests::ErrorNumberOf([&] { (void)WriteFilesWhereFree(files); }) == 0) ::_exit(1);
  });
  EXPECT_EQ(end.Signal, SIGTERM);
  EXPECT_TRUE(fs::is_empty(folder_.Path()));
}

TEST_F(Interruption, ByAKillLeavesNoFileWhereFilesNeedNoName) {
  const auto killed = [&](FileInWaiting::Named named) {
    return EndOf([&, named] {
      const FileInWaiting file(folder_.Path(), "text", nullptr, named);
      const bool hasName = !fs::is_empty(folder_.Path());
      if (hasName && named == FileInWaiting::Named::WhereItMust) ::_exit(kWentOn);
      std::raise(SIGKILL);
    });
  };
  const Ending end = killed(FileInWaiting::Named::WhereItMust);
  if (end.Status == kWentOn) GTEST_SKIP() << "every file of this file system has a name";
  EXPECT_EQ(end.Signal, SIGKILL);
  EXPECT_TRUE(fs::is_empty(folder_.Path()));
  EXPECT_EQ(killed(FileInWaiting::Named::Always).Signal, SIGKILL);
  EXPECT_FALSE(fs::is_empty(folder_.Path())) << "the kill came while the file was there";
}

}  // namespace
