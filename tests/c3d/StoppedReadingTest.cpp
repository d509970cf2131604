// SPDX-License-Identifier: GPL-3.0-or-later

#include <atomic>

#include <gtest/gtest.h>

#include "c3d/FrameData.h"
#include "gait/Checkup.h"
#include "support/StoppableWork.h"
#include "tests/TestTrials.h"

namespace {

using modAllPurpose::StoppableWork;
using modAllPurpose::WorkStopped;

TEST(StoppedReading, EndsWhereTheFileIsReadNext) {
  tests::OpenedTrial trial{sample::TrialBuilder()};
  std::atomic<bool> isStopped = false;
  const StoppableWork work(isStopped);
  EXPECT_NO_THROW(modVantrel::ReadPointDataForIndex(trial.State(), 1));
  isStopped = true;
  trial.State().C3dFileNumber.ForgetBuffer();
  EXPECT_THROW(modVantrel::ReadPointDataForIndex(trial.State(), 1), WorkStopped);
}

// A checkup goes on behind every fault of a file, but not behind this.
TEST(StoppedReading, EndsACheckupToo) {
  const tests::OpenedTrial trial{sample::TrialBuilder()};
  const std::atomic<bool> isStopped = true;
  const StoppableWork work(isStopped);
  EXPECT_THROW(modVantrel::CheckTrial(trial.File().string()), WorkStopped);
}

TEST(StoppedReading, NoLongerEndsWorkThatBeginsLater) {
  tests::OpenedTrial trial{sample::TrialBuilder()};
  {
    const std::atomic<bool> isStopped = true;
    const StoppableWork work(isStopped);
  }
  trial.State().C3dFileNumber.ForgetBuffer();
  EXPECT_NO_THROW(modVantrel::ReadPointDataForIndex(trial.State(), 1));
}

}  // namespace
