// SPDX-License-Identifier: GPL-3.0-or-later

#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "c3d/PointKinds.h"
#include "tests/TestTrials.h"

namespace {

using modVantrel::PointKind;
using modVantrel::PointKinds;

sample::ParamSpec Texts(const std::string& name, const std::vector<std::string>& texts) {
  std::size_t length = 0;
  for (const std::string& text : texts) length = std::max(length, text.size());
  return {name,  {static_cast<std::uint8_t>(length), static_cast<std::uint8_t>(texts.size())},
          texts, "",
          false, {}};
}

sample::TrialBuilder TrialOfKinds() {
  sample::TrialBuilder builder;
  builder.SetParam("POINT", Texts("UNITS", {"mm"}));
  builder.SetParam("POINT", Texts("ANGLES", {"LKneeAngles", "RKneeAngles"}));
  builder.SetParam("POINT", Texts("ANGLE_UNITS", {"deg "}));
  builder.SetParam("POINT", Texts("MOMENTS", {"LKneeMoment"}));
  builder.SetParam("POINT", Texts("MOMENT_UNITS", {"Nmm"}));
  builder.SetParam("POINT", Texts("POWERS", {"LKneePower"}));
  return builder;
}

TEST(PointKinds, LabelIsOfTheKindThatListsIt) {
  tests::OpenedTrial trial(TrialOfKinds());
  const PointKinds kinds(trial.State());
  EXPECT_EQ(kinds.KindOf("LKneeAngles"), PointKind::Angle);
  EXPECT_EQ(kinds.KindOf(" rkneeANGLES"), PointKind::Angle);
  EXPECT_EQ(kinds.KindOf("LKneeMoment"), PointKind::Moment);
  EXPECT_EQ(kinds.KindOf("LKneePower"), PointKind::Power);
  EXPECT_EQ(kinds.KindOf("LTOE"), PointKind::Marker);
}

TEST(PointKinds, UnitIsThatOfTheKind) {
  tests::OpenedTrial trial(TrialOfKinds());
  const PointKinds kinds(trial.State());
  EXPECT_EQ(kinds.UnitOf("LTOE"), "mm");
  EXPECT_EQ(kinds.UnitOf("LKneeAngles"), "deg");
  EXPECT_EQ(kinds.UnitOf("LKneeMoment"), "Nmm");
  EXPECT_EQ(kinds.UnitOf("LKneePower"), "") << "the file names no unit of powers";
}

TEST(PointKinds, ListedLabelsLoseThePrefixLikeAllLabels) {
  sample::TrialBuilder builder;
  builder.SetParam("POINT", Texts("ANGLES", {"Ann:LKneeAngles"}));
  tests::OpenedTrial trial(builder);
  trial.State().LabelPrefix = "Ann:";
  EXPECT_EQ(PointKinds(trial.State()).KindOf("LKneeAngles"), PointKind::Angle);
}

TEST(PointKinds, EmptyEntryOfAListIsNoLabel) {
  sample::TrialBuilder builder = TrialOfKinds();
  builder.SetParam("POINT", Texts("ANGLES", {"LKneeAngles", ""}));
  tests::OpenedTrial trial(builder);
  EXPECT_EQ(PointKinds(trial.State()).UnitOf(""), "mm");
}

TEST(PointKinds, SectionThatCannotBeWalkedListsNothing) {
  tests::OpenedTrial trial(TrialOfKinds());
  std::filesystem::resize_file(trial.File(), 600);
  const PointKinds kinds(trial.State());
  EXPECT_EQ(kinds.KindOf("LKneeAngles"), PointKind::Marker);
  EXPECT_EQ(kinds.UnitOf("LKneeAngles"), "");
}

}  // namespace
