// SPDX-License-Identifier: GPL-3.0-or-later

#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "c3d/FrameData.h"
#include "c3d/LabelTables.h"
#include "tests/TestTrials.h"

namespace {

using modVantrel::AddFurtherLabels;
using modVantrel::GetPointLabelIndex;

sample::ParamSpec PaddedTexts(const std::string& name, const std::vector<std::string>& texts) {
  std::vector<std::string> padded = texts;
  for (std::string& text : padded) text.resize(8, ' ');
  return {name, {8, static_cast<std::uint8_t>(texts.size())}, padded, "", false, {}};
}

// 258 points of which the parameter LABELS can name 255.
sample::TrialBuilder TrialOfManyPoints() {
  sample::TrialBuilder builder;
  std::vector<std::string> first;
  for (int i = 1; i <= 258; ++i) {
    const std::string label = "P" + std::to_string(i);
    builder.AddPoint(label, [](std::int32_t) { return std::array<float, 3>{}; });
    if (i <= 255) first.push_back(label);
  }
  builder.SetParam("POINT", PaddedTexts("LABELS", first));
  return builder;
}

TEST(FurtherLabels, ComeFromTheNumberedTables) {
  tests::OpenedTrial trial(TrialOfManyPoints().SetParam(
      "POINT", PaddedTexts("LABELS2", {"A256", "A257", "A258", "A259"})));
  ASSERT_EQ(trial.Result(), modVantrel::OpenResult::Success);
  EXPECT_EQ(trial.State().PointLabels[256], "") << "an open knows the first 255 alone";
  AddFurtherLabels(trial.State());
  EXPECT_EQ(trial.State().PointLabels[255], "P255");
  EXPECT_EQ(trial.State().PointLabels[256], "A256");
  EXPECT_EQ(trial.State().PointLabels[258], "A258");
  EXPECT_EQ(trial.State().PointLabels.Count(), 258);
  EXPECT_EQ(GetPointLabelIndex(trial.State(), "a257"), 257);
}

TEST(FurtherLabels, CanBeTakenBack) {
  tests::OpenedTrial trial(TrialOfManyPoints().SetParam("POINT", PaddedTexts("LABELS2", {"A256"})));
  const auto asOpened = trial.State().PointLabels;
  AddFurtherLabels(trial.State());
  ASSERT_NE(trial.State().PointLabels, asOpened);
  modVantrel::DropFurtherLabels(trial.State());
  EXPECT_EQ(trial.State().PointLabels, asOpened);
}

TEST(FurtherLabels, LoseThePrefixLikeTheOthers) {
  tests::OpenedTrial trial(
      TrialOfManyPoints().SetParam("POINT", PaddedTexts("LABELS2", {"Ann:X"})));
  trial.State().LabelPrefix = "Ann:";
  AddFurtherLabels(trial.State());
  EXPECT_EQ(trial.State().PointLabels[256], "X");
}

TEST(FurtherLabels, StayEmptyWhereNoTableNamesThem) {
  tests::OpenedTrial trial(TrialOfManyPoints());
  AddFurtherLabels(trial.State());
  EXPECT_EQ(trial.State().PointLabels[256], "");
}

TEST(TextTable, HoldsTheEntriesOfAllTables) {
  tests::OpenedTrial trial(TrialOfManyPoints()
                               .SetParam("POINT", PaddedTexts("DESCRIPTIONS", {"one"}))
                               .SetParam("POINT", PaddedTexts("DESCRIPTIONS2", {"two"})));
  const auto texts = modVantrel::ReadTextTable(trial.State(), "POINT", "DESCRIPTIONS", 258);
  EXPECT_EQ(texts.Count(), 258);
  EXPECT_EQ(texts[1], "one");
  EXPECT_EQ(texts[2], "");
  EXPECT_EQ(texts[256], "two");
}

modVantrel::PointSample WithFourthWord(float word) {
  modVantrel::PointSample sample;
  sample.FourthWord = word;
  return sample;
}

TEST(Residual, IsTheLowEightBitsOfTheFourthWordTimesTheScale) {
  EXPECT_EQ(modVantrel::ResidualOf(WithFourthWord(3), 0.5F), 1.5F);
  EXPECT_EQ(modVantrel::ResidualOf(WithFourthWord(256 * 5 + 7.9F), 0.5F), 3.5F);
  EXPECT_EQ(modVantrel::ResidualOf(WithFourthWord(0), 0.5F), 0.0F);
  EXPECT_EQ(modVantrel::ResidualOf(WithFourthWord(-1), 0.5F), -1.0F);
  EXPECT_EQ(modVantrel::ResidualOf(WithFourthWord(std::nanf("")), 0.5F), -1.0F);
}

TEST(PointSample, IsSeenUnlessItsFourthWordIsNegativeOrAValueMissing) {
  EXPECT_TRUE(WithFourthWord(0).IsSeen());
  EXPECT_FALSE(WithFourthWord(-1).IsSeen());
  EXPECT_FALSE(WithFourthWord(std::nanf("")).IsSeen());
  modVantrel::PointSample sample;
  sample.Y = std::nanf("");
  EXPECT_FALSE(sample.IsSeen());
}

}  // namespace
