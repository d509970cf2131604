// SPDX-License-Identifier: GPL-3.0-or-later

#include <cmath>
#include <limits>
#include <vector>

#include <gtest/gtest.h>

#include "pages/MissingInstants.h"
#include "tests/visit/VisitWalks.h"

namespace {

using modVantrel::NormalizedCurve;
using tests::Opened;
using tests::OpenedWalk;

constexpr float kFrame = 1.0F / 64;

// 20 frames at 64 Hz, counted from `first`, with a point that is not seen in `gap`, from 1.
sample::TrialBuilder TrialWithGap(std::int32_t gap, std::int16_t first = 1) {
  sample::TrialBuilder builder;
  builder.StoredAs(sample::Storage::Single).Rate(64);
  builder.Frames(first, static_cast<std::int16_t>(first + 19));
  return builder.AddPoint("P", tests::Standing(1, 2, 3)).NotSeen(1, gap);
}

// Whether an instant is missing that falls `frames` behind the trial's first frame.
bool IsMissing(const sample::TrialBuilder& builder, double frames) {
  OpenedWalk walk = Opened(builder);
  const auto samples = modVantrel::GetPointDataForLabel(walk.State(), "P");
  NormalizedCurve curve(1);
  curve[1].Time = static_cast<float>(double{walk.State().WalkStartTime} + frames * double{kFrame});
  return pages::MissingInstants(walk.State(), samples, curve).test(0);
}

TEST(MissingInstants, InstantOnAFrameIsMissingWithThatFrameAlone) {
  const auto gap = TrialWithGap(11);  // the place 10, counted from 0
  EXPECT_TRUE(IsMissing(gap, 10));
  EXPECT_FALSE(IsMissing(gap, 9)) << "next to the gap";
  EXPECT_FALSE(IsMissing(gap, 11));
}

TEST(MissingInstants, InstantBetweenFramesIsMissingWithEither) {
  const auto gap = TrialWithGap(11);
  EXPECT_TRUE(IsMissing(gap, 9.5));
  EXPECT_TRUE(IsMissing(gap, 10.5));
  EXPECT_FALSE(IsMissing(gap, 8.5));
  EXPECT_FALSE(IsMissing(gap, 11.5));
}

TEST(MissingInstants, WithinAThousandthOfAFrameItIsOnTheFrame) {
  const auto gap = TrialWithGap(11);
  EXPECT_FALSE(IsMissing(gap, 9.0009));
  EXPECT_TRUE(IsMissing(gap, 9.0011));
  EXPECT_FALSE(IsMissing(gap, 10.9991));
  EXPECT_TRUE(IsMissing(gap, 10.9989));
}

TEST(MissingInstants, FramesAreCountedFromTheTrialsFirst) {
  const auto gap = TrialWithGap(11, 101);
  EXPECT_TRUE(IsMissing(gap, 10));
  EXPECT_FALSE(IsMissing(gap, 9));
}

TEST(MissingInstants, FirstAndLastFrameCount) {
  EXPECT_TRUE(IsMissing(TrialWithGap(1), 0));
  EXPECT_TRUE(IsMissing(TrialWithGap(20), 19));
  EXPECT_FALSE(IsMissing(TrialWithGap(11), 0));
  EXPECT_FALSE(IsMissing(TrialWithGap(11), 19));
}

TEST(MissingInstants, TimesOutsideTheTrialStandForItsEnds) {
  EXPECT_TRUE(IsMissing(TrialWithGap(1), -3));
  EXPECT_TRUE(IsMissing(TrialWithGap(20), 25.5));
  EXPECT_FALSE(IsMissing(TrialWithGap(11), 25.5));
}

TEST(MissingInstants, TimeThatIsNoNumberIsMissing) {
  EXPECT_TRUE(IsMissing(TrialWithGap(11), std::numeric_limits<double>::quiet_NaN()));
}

TEST(HasNotANumber, LooksAtEveryCoordinateOfEveryFrame) {
  for (const std::size_t part : {0U, 1U, 2U}) {
    OpenedWalk walk = Opened(tests::TrialOfOneStride("Left").AddPoint("P", [part](std::int32_t at) {
      std::array place{1.0F, 2.0F, 3.0F};
      if (at == 81) place.at(part) = std::numeric_limits<float>::quiet_NaN();
      return place;
    }));
    EXPECT_TRUE(pages::HasNotANumber(modVantrel::GetPointDataForLabel(walk.State(), "P")));
  }
  OpenedWalk walk = Opened(TrialWithGap(3));
  EXPECT_FALSE(pages::HasNotANumber(modVantrel::GetPointDataForLabel(walk.State(), "P")));
}

}  // namespace
