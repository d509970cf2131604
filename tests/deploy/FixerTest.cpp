// SPDX-License-Identifier: GPL-3.0-or-later

#include <string>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "deploy/DeployDependencies.h"
#include "tests/deploy/FakeHost.h"

namespace {

using modVantrel_PatchUp::DeployDependencies;
using testing::Each;
using testing::ElementsAre;
using testing::IsEmpty;
using testing::Not;
using testing::StartsWith;
using tests::AppendTimes;
using tests::FakeHost;
using tests::Steps;

Steps Plus(Steps steps, const Steps& more) {
  AppendTimes(steps, 1, more);
  return steps;
}

// The fixer beside the main program, which is installed.
class Fixer : public testing::Test {
 protected:
  Fixer() {
    FakeHost::CarryEverything(host_);
    FakeHost::PutEverythingInPlace(host_);
    host_.Program = R"(C:\Gait\vantrel_Fix.exe)";
    host_.Files[host_.Program] = "fixer";
  }

  FakeHost host_;
};

const std::string kWriteBack = R"(copy C:\Gait\vantrel_Fix.exe to C:\Gait\vantrel.exe)";
const std::string kStartAgain = R"(start C:\Gait\vantrel.exe normal)";

TEST_F(Fixer, WaitsTakesThePlaceOfTheProgramAndStartsIt) {
  EXPECT_FALSE(DeployDependencies(host_));
  EXPECT_THAT(host_.Steps, ElementsAre("wait 5000 ms", kWriteBack, kStartAgain));
  EXPECT_EQ(host_.Files.at(R"(C:\Gait\vantrel.exe)"), "fixer");
}

TEST_F(Fixer, KnowsItselfWhateverTheCaseOfItsName) {
  host_.Program = R"(C:\Gait\VANTREL_FIX.EXE)";
  host_.Files[host_.Program] = "fixer";
  EXPECT_FALSE(DeployDependencies(host_));
  EXPECT_THAT(host_.Steps,
              ElementsAre("wait 5000 ms", R"(copy C:\Gait\VANTREL_FIX.EXE to C:\Gait\vantrel.exe)",
                          kStartAgain));
}

TEST_F(Fixer, CopiesAgainAfterFiveSecondsUntilTheProgramHasEnded) {
  host_.FailingCopies = 11;
  EXPECT_FALSE(DeployDependencies(host_));
  Steps expected = {"wait 5000 ms"};
  AppendTimes(expected, 11, {kWriteBack, "wait 5000 ms"});
  EXPECT_EQ(host_.Steps, Plus(expected, {kWriteBack, kStartAgain}));
}

TEST_F(Fixer, AfterTwelveFailedCopiesSaysSoAndEnds) {
  host_.FailingCopies = 12;
  EXPECT_FALSE(DeployDependencies(host_));
  Steps expected = {"wait 5000 ms"};
  AppendTimes(expected, 11, {kWriteBack, "wait 5000 ms"});
  EXPECT_EQ(host_.Steps, Plus(expected, {kWriteBack, "message Error copying program file."}));
}

TEST_F(Fixer, StartsAgainAfterFiveSeconds) {
  host_.FailingStarts = 11;
  EXPECT_FALSE(DeployDependencies(host_));
  Steps expected = {"wait 5000 ms", kWriteBack};
  AppendTimes(expected, 11, {kStartAgain, "wait 5000 ms"});
  EXPECT_EQ(host_.Steps, Plus(expected, {kStartAgain}));
}

TEST_F(Fixer, AfterTwelveFailedStartsSaysSoAndEnds) {
  host_.FailingStarts = 12;
  EXPECT_FALSE(DeployDependencies(host_));
  Steps expected = {"wait 5000 ms", kWriteBack};
  AppendTimes(expected, 11, {kStartAgain, "wait 5000 ms"});
  EXPECT_EQ(host_.Steps, Plus(expected, {kStartAgain, "message Error running main program file."}));
}

TEST_F(Fixer, WithItsOwnMarkerFileGoesOn) {
  host_.Files[R"(C:\Gait\vantrel_fix.exe.manifest1)"] = "";
  EXPECT_TRUE(DeployDependencies(host_));
  EXPECT_THAT(host_.Steps, IsEmpty());
}

TEST_F(Fixer, ExtractsNothing) {
  host_.Files.erase(R"(C:\Gait\vantrel.exe.manifest)");
  host_.Folders.erase(R"(C:\Gait\Dependencies)");
  EXPECT_FALSE(DeployDependencies(host_));
  EXPECT_THAT(host_.Steps, Each(Not(StartsWith("write "))));
}

}  // namespace
