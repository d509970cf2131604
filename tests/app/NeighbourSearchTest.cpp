// SPDX-License-Identifier: GPL-3.0-or-later

// The search for the trials beside one: it keeps nobody waiting, however long a folder takes.

#include <atomic>
#include <future>
#include <new>
#include <string>
#include <vector>

#include <QTest>
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "app/NeighbourSearch.h"

namespace {

using app::Neighbours;
using app::NeighbourSearch;
using testing::ElementsAre;
using testing::IsEmpty;

// A folder that answers only once it is let to, and what was heard of it.
class SleepingFolder : public ::testing::Test {
 protected:
  SleepingFolder() {
    QObject::connect(&search_, &NeighbourSearch::Found,
                     [this](const Neighbours& found) { found_.push_back(found.Next); });
  }
  ~SleepingFolder() override { Wake(); }

  void Wake() {
    if (!awake_.exchange(true)) wake_.set_value();
  }
  void AwaitEnd() {
    ASSERT_TRUE(QTest::qWaitFor([this] { return !search_.IsBusy(); }));
  }

  std::promise<void> wake_;
  std::shared_future<void> woken_ = wake_.get_future().share();
  std::atomic<bool> awake_ = false;
  std::atomic<int> asked_ = 0;
  std::vector<std::string> found_;
  NeighbourSearch search_{[this](const std::string& trial) {
    ++asked_;
    woken_.wait();
    return Neighbours{.Previous = {}, .Next = "behind " + trial};
  }};
};

TEST_F(SleepingFolder, KeepsNobodyWaitingAndTellsWhatItFindsAtLast) {
  search_.Start("a.c3d");
  EXPECT_TRUE(search_.IsBusy());
  EXPECT_THAT(found_, IsEmpty());
  Wake();
  AwaitEnd();
  EXPECT_THAT(found_, ElementsAre("behind a.c3d"));
}

TEST_F(SleepingFolder, IsAskedOnceHoweverOftenTheWindowIsClicked) {
  for (int i = 0; i < 5; ++i) search_.Start("a.c3d");
  Wake();
  AwaitEnd();
  EXPECT_EQ(asked_, 1);
  search_.Start("a.c3d");
  AwaitEnd();
  EXPECT_EQ(asked_, 2) << "another trial may have been recorded meanwhile";
}

TEST_F(SleepingFolder, SaysNothingOfATrialThatNobodyAsksForAnyMore) {
  search_.Start("a.c3d");
  search_.Start("b.c3d");
  Wake();
  AwaitEnd();
  EXPECT_THAT(found_, ElementsAre("behind b.c3d"));
}

TEST_F(SleepingFolder, IsNotAskedForTrialsThatWereLeftMeanwhile) {
  search_.Start("a.c3d");
  ASSERT_TRUE(QTest::qWaitFor([this] { return asked_ == 1; }));
  for (const char* trial : {"b.c3d", "c.c3d", "d.c3d"}) search_.Start(trial);
  Wake();
  AwaitEnd();
  EXPECT_EQ(asked_, 2);
  EXPECT_THAT(found_, ElementsAre("behind d.c3d"));
}

TEST_F(SleepingFolder, SaysNothingWhereNoTrialIsLeft) {
  search_.Start("a.c3d");
  search_.Start("");
  Wake();
  AwaitEnd();
  EXPECT_THAT(found_, IsEmpty());
}

TEST(NeighbourSearch, InAFolderThatIsTooLargeForTheMemoryFindsNone) {
  NeighbourSearch search([](const std::string&) -> Neighbours { throw std::bad_alloc(); });
  std::vector<std::string> found;
  QObject::connect(&search, &NeighbourSearch::Found,
                   [&](const Neighbours& none) { found.push_back(none.Previous + none.Next); });
  search.Start("a.c3d");
  ASSERT_TRUE(QTest::qWaitFor([&] { return !search.IsBusy(); }));
  EXPECT_THAT(found, ElementsAre(""));
}

}  // namespace
