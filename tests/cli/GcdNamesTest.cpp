// SPDX-License-Identifier: GPL-3.0-or-later

#include <chrono>
#include <future>
#include <optional>
#include <string>
#include <thread>

#include <gtest/gtest.h>

#include "cli/GcdNames.h"
#include "support/FileSystem.h"

// The trials of a command that want the same GCD files while several are at work.
namespace {

using cli::GcdNames;
using cli::GcdTurn;

constexpr std::chrono::milliseconds kLongEnoughToGoWrong{50};

class TurnsForNames : public testing::Test {
 protected:
  void SetUp() override { first_.emplace(names_, 0); }

  // The trial in front that has written "one.gcd", as the second trial, in a thread of its own,
  // sees it when it has its turn for `name`.
  std::future<std::string> SecondClaims(const std::string& name) {
    return std::async(std::launch::async, [this, name] {
      GcdTurn second(names_, 1);
      second.Claim("second", {name});
      return second.WriterOf("one.gcd");
    });
  }

  static std::string Spelled(const std::string& name) { return modAllPurpose::OneSpelling(name); }

  GcdNames names_;
  std::optional<GcdTurn> first_;
};

TEST_F(TurnsForNames, WaitUntilThoseInFrontHaveSaidTheirs) {
  auto seen = SecondClaims("./one.gcd");
  std::this_thread::sleep_for(kLongEnoughToGoWrong);
  first_->Claim("first", {"one.gcd"});
  first_->Wrote("one.gcd");
  first_.reset();
  EXPECT_EQ(seen.get(), Spelled("first"));
}

TEST_F(TurnsForNames, WaitUntilTheOneInFrontIsDone) {
  first_->Claim("first", {"one.gcd"});
  auto seen = SecondClaims("./one.gcd");
  std::this_thread::sleep_for(kLongEnoughToGoWrong);
  first_->Wrote("one.gcd");
  first_.reset();
  EXPECT_EQ(seen.get(), Spelled("first"));
}

TEST_F(TurnsForNames, DoNotWaitForOneThatWantsOthers) {
  first_->Claim("first", {"one.gcd"});
  EXPECT_EQ(SecondClaims("other.gcd").get(), "");
}

TEST_F(TurnsForNames, DoNotWaitForOneThatFailedBeforeItSaidAny) {
  first_.reset();
  EXPECT_EQ(SecondClaims("one.gcd").get(), "");
}

TEST_F(TurnsForNames, NeverWaitForOneBehind) {
  {
    GcdTurn second(names_, 1);
    first_->Claim("first", {"one.gcd"});
    second.Claim("second", {"two.gcd"});
  }
  EXPECT_EQ(first_->WriterOf("two.gcd"), "");
}

}  // namespace
