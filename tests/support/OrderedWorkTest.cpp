// SPDX-License-Identifier: GPL-3.0-or-later

#include <atomic>
#include <chrono>
#include <future>
#include <stdexcept>
#include <string>
#include <thread>

#include <gtest/gtest.h>

#include "support/OrderedWork.h"
#include "support/StoppableWork.h"

namespace {

using modAllPurpose::AtItsTurn;
using modAllPurpose::OrderedWork;
using modAllPurpose::PostPiece;
using modAllPurpose::WorkInOrder;

// Collects all that is handed over as one text.
class Collected {
 public:
  void Add(const std::string& piece) { text_ += piece; }
  const std::string& Text() const { return text_; }

  // Works that hand over to this object.
  OrderedWork Works(std::size_t count, int threads) {
    OrderedWork works;
    works.Count = count;
    works.Threads = threads;
    works.Take = [this](const std::string& piece) { Add(piece); };
    return works;
  }

  AtItsTurn Leaving(const std::string& text) {
    return {[this, text] { Add(text); }};
  }

 private:
  std::string text_;
};

// The first works take longest.
void Dawdle(std::size_t number) {
  std::this_thread::sleep_for(std::chrono::milliseconds(number < 4 ? 20 - 5 * number : 0));
}

class OrderedWorks : public testing::TestWithParam<int> {};

TEST_P(OrderedWorks, HandOverInTheOrderOfTheirNumbersWhicheverIsFirst) {
  constexpr std::size_t kCount = 200;
  Collected collected;
  OrderedWork works = collected.Works(kCount, GetParam());
  works.Work = [&](std::size_t number, const PostPiece& post) {
    post(std::to_string(number));
    Dawdle(number);
    post("+");
    return collected.Leaving(".");
  };
  WorkInOrder(works);
  std::string expected;
  for (std::size_t i = 0; i < kCount; ++i) expected += std::to_string(i) + "+.";
  EXPECT_EQ(collected.Text(), expected);
}

TEST_P(OrderedWorks, ThatEndInAnErrorHandOverWhatTheyMadeAndThenTheError) {
  Collected collected;
  OrderedWork works = collected.Works(100, GetParam());
  works.Work = [&](std::size_t number, const PostPiece& post) {
    Dawdle(number);
    post(std::to_string(number));
    if (number == 3) throw std::runtime_error("the fourth");
    return AtItsTurn{};
  };
  EXPECT_THROW(WorkInOrder(works), std::runtime_error);
  EXPECT_EQ(collected.Text(), "0123");
}

TEST_P(OrderedWorks, EndSoonOnceNobodyTakesWhatTheyMake) {
  OrderedWork works;
  works.Count = 1'000'000;
  works.Threads = GetParam();
  works.MostWaiting = 10;
  std::atomic<std::size_t> begun = 0;
  works.Work = [&](std::size_t /*number*/, const PostPiece& post) {
    ++begun;
    post("piece");
    return AtItsTurn{};
  };
  works.Take = [](const std::string& /*piece*/) { throw std::runtime_error("no more"); };
  EXPECT_THROW(WorkInOrder(works), std::runtime_error);
  EXPECT_LT(begun, 1000U);
}

TEST_P(OrderedWorks, ThatOnlyReadAreStoppedAsWell) {
  OrderedWork works;
  works.Count = 20;
  works.Threads = GetParam();
  works.Work = [&](std::size_t number, const PostPiece& /*post*/) -> AtItsTurn {
    if (number == 0) return {[] { throw std::runtime_error("no more"); }};
    for (;;) modAllPurpose::StoppableWork::EndIfStopped();
  };
  EXPECT_THROW(WorkInOrder(works), std::runtime_error);
}

TEST_P(OrderedWorks, OfWhichThereAreNoneAreFinished) {
  OrderedWork works;
  works.Threads = GetParam();
  int finished = 0;
  works.Finish = [&] { ++finished; };
  WorkInOrder(works);
  EXPECT_EQ(finished, 1);
}

TEST_P(OrderedWorks, MayPostPiecesThatAreLargerThanWhatMayWait) {
  Collected collected;
  OrderedWork works = collected.Works(20, GetParam());
  works.MostWaiting = 10;
  works.Work = [&](std::size_t number, const PostPiece& post) {
    post(std::string(100, static_cast<char>('a' + number)));
    post("\n");
    return collected.Leaving("");
  };
  WorkInOrder(works);
  std::string expected;
  for (char letter = 'a'; letter < 'a' + 20; ++letter) expected += std::string(100, letter) + '\n';
  EXPECT_EQ(collected.Text(), expected);
}

INSTANTIATE_TEST_SUITE_P(By, OrderedWorks, testing::Values(1, 2, 8), [](const auto& threads) {
  return std::to_string(threads.param) + "Threads";
});

// Works of which the first is slow; each of the others makes one piece of kPiece bytes.
class BehindASlowWork : public testing::Test {
 protected:
  OrderedWork Works(std::size_t count) {
    OrderedWork works;
    works.Count = count;
    works.Threads = 3;
    works.Work = [this](std::size_t number, const PostPiece& post) {
      if (number == 0) {
        slow_.get_future().wait();
      } else {
        post(std::string(kPiece, 'x'));
        ++made_;
      }
      return AtItsTurn{{}, bytesLeft_};
    };
    works.Take = [this](const std::string& piece) { taken_ += piece.size(); };
    return works;
  }

  // Lets the slow one end once nothing more has happened for a while.
  void EndWhenAllIsQuiet() {
    std::size_t before = 0;
    do {
      before = made_;
      std::this_thread::sleep_for(std::chrono::milliseconds(100));
    } while (made_ != before || made_ == 0);
    madeBehind_ = made_;
    slow_.set_value();
  }

  static constexpr std::size_t kPiece = 1000;
  std::promise<void> slow_;
  std::atomic<std::size_t> made_ = 0;
  std::size_t madeBehind_ = 0;
  std::size_t bytesLeft_ = 0;
  std::size_t taken_ = 0;
};

TEST_F(BehindASlowWork, TheOthersGoOnAsFarAsTheBoundAndThenWait) {
  OrderedWork works = Works(500);
  works.MostWaiting = 100 * kPiece;
  std::thread waiting([&] { EndWhenAllIsQuiet(); });
  WorkInOrder(works);
  waiting.join();
  EXPECT_EQ(madeBehind_, 100U);
  EXPECT_EQ(taken_, 499 * kPiece);
}

TEST_F(BehindASlowWork, WhatTheOthersLeaveCountsForTheBoundToo) {
  OrderedWork works = Works(500);
  works.MostWaiting = 100 * kPiece;
  bytesLeft_ = 9 * kPiece;
  std::thread waiting([&] { EndWhenAllIsQuiet(); });
  WorkInOrder(works);
  waiting.join();
  EXPECT_GE(madeBehind_, 10U);
  EXPECT_LE(madeBehind_, 12U) << "one a thread may come on top";
  EXPECT_EQ(taken_, 499 * kPiece);
}

TEST_F(BehindASlowWork, TheCallerIsAskedMeanwhile) {
  OrderedWork works = Works(1);
  int asked = 0;
  works.Meanwhile = [&] {
    if (++asked == 3) slow_.set_value();
  };
  WorkInOrder(works);
  EXPECT_GE(asked, 3);
}

TEST(OrderedWorkAtItsTurn, HandsOverAsItGoes) {
  int pieces = 0;
  std::promise<void> taken;
  OrderedWork works;
  works.Count = 1;
  works.Work = [&](std::size_t /*number*/, const PostPiece& post) {
    post("first");
    taken.get_future().wait();  // for ever, if nothing came before the end
    return AtItsTurn{};
  };
  works.Take = [&](const std::string& /*piece*/) {
    ++pieces;
    taken.set_value();
  };
  WorkInOrder(works);
  EXPECT_EQ(pieces, 1);
}

TEST(ThreadsFor, IsTheNumberOrOneAProcessor) {
  EXPECT_EQ(modAllPurpose::ThreadsFor(3), 3);
  EXPECT_GE(modAllPurpose::ThreadsFor(0), 1);
}

}  // namespace
