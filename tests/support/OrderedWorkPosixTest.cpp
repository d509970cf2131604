// SPDX-License-Identifier: GPL-3.0-or-later

#include <cstddef>
#include <pthread.h>
#include <stdexcept>
#include <string>

#include <gtest/gtest.h>

#include "support/MessageOf.h"
#include "support/OrderedWork.h"

namespace {

using modAllPurpose::AtItsTurn;
using modAllPurpose::OrderedWork;
using modAllPurpose::PostPiece;
using modAllPurpose::WorkInOrder;

// A system that gives no thread: each would get more memory than there is.
class WithoutThreads : public testing::Test {
 protected:
  WithoutThreads() {
    ::pthread_getattr_default_np(&before_);
    pthread_attr_t huge;
    ::pthread_attr_init(&huge);
    ::pthread_attr_setstacksize(&huge, std::size_t{1} << 50U);
    ::pthread_setattr_default_np(&huge);
    ::pthread_attr_destroy(&huge);
  }
  ~WithoutThreads() override {
    ::pthread_setattr_default_np(&before_);
    ::pthread_attr_destroy(&before_);
  }

  // Works that each post a piece and leave another.
  OrderedWork Works(std::size_t count) {
    OrderedWork works;
    works.Count = count;
    works.Threads = 2;
    works.MostWaiting = 1;
    works.Work = [this](std::size_t number, const PostPiece& post) {
      post(std::to_string(number) + "+");
      return AtItsTurn{[this] { text_ += "."; }};
    };
    works.Take = [this](const std::string& piece) { text_ += piece; };
    return works;
  }

  pthread_attr_t before_{};
  std::string text_;
};

TEST_F(WithoutThreads, WorksAreDoneOneAfterTheOtherAllTheSame) {
  OrderedWork works = Works(3);
  int asked = 0;
  works.Meanwhile = [&] { ++asked; };
  works.Finish = [this] { text_ += "end"; };
  WorkInOrder(works);
  EXPECT_EQ(text_, "0+.1+.2+.end");
  EXPECT_EQ(asked, 6);
}

TEST_F(WithoutThreads, WhatCannotBeTakenIsNoErrorOfItsWork) {
  OrderedWork works = Works(3);
  const auto work = works.Work;
  works.Work = [&](std::size_t number, const PostPiece& post) {
    modAllPurpose::MessageOf([&] {
      work(number, post);
      return std::string();
    });
    return AtItsTurn{};
  };
  works.Take = [](const std::string& /*piece*/) {
    throw modAllPurpose::RuntimeError(modAllPurpose::ErrorNumber::OutOfMemory);
  };
  EXPECT_THROW(WorkInOrder(works), modAllPurpose::RuntimeError);
}

}  // namespace
