// SPDX-License-Identifier: GPL-3.0-or-later

#include <cmath>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "tests/visit/VisitWalks.h"
#include "visit/Variability.h"

namespace {

using modVantrel::GaitSide;
using tests::AddStandingCurve;
using visit::LabelCurves;
using visit::Variability;
using visit::VariabilityRow;

LabelCurves Empty(const std::string& label) { return {label, "deg", {}, {}}; }

LabelCurves LeftCurve(const std::string& label, double x) {
  LabelCurves curves = Empty(label);
  AddStandingCurve(curves.Left, {x, 0, 0});
  return curves;
}

TEST(Variability, IsTheMeanOverTheInstantsOfTheDeviationBetweenStrides) {
  // One stride rises from 0 to 50, the other stays at 0: the deviation at instant i is i / sqrt(2),
  // its mean over 0 ... 50 is 25 / sqrt(2).
  std::array<visit::CurveValues, 3> rising{};
  for (std::size_t i = 0; i < visit::kInstants; ++i) rising[0][i] = static_cast<double>(i);
  LabelCurves curves = LeftCurve("LKneeAngles", 0);
  curves.Left.Add(rising);
  Variability variability;
  variability.Add({curves});
  const VariabilityRow row = variability.Rows().at(0);
  EXPECT_EQ(row.Side, GaitSide::Left);
  EXPECT_EQ(row.Part, modVantrel::Component::X);
  EXPECT_EQ(row.Count, 2);
  EXPECT_DOUBLE_EQ(*row.Deviation, 25 / std::sqrt(2.0));
  EXPECT_EQ(row.Unit, "deg");
}

TEST(Variability, StridesOfAllTrialsCount) {
  Variability variability;
  for (const double x : {1.0, 2.0, 6.0}) variability.Add({LeftCurve("LKneeAngles", x)});
  // Around the mean 3: 4 + 1 + 9 = 14.
  EXPECT_EQ(variability.Rows().at(0).Count, 3);
  EXPECT_DOUBLE_EQ(*variability.Rows().at(0).Deviation, std::sqrt(14.0 / 2));
}

TEST(Variability, OneStrideHasARowWithoutADeviation) {
  Variability variability;
  variability.Add({LeftCurve("LKneeAngles", 1)});
  EXPECT_EQ(variability.Rows().at(0).Count, 1);
  EXPECT_FALSE(variability.Rows().at(0).Deviation);
}

TEST(Variability, RowsStandBySideThenLabelAsFirstMetThenComponent) {
  Variability variability;
  variability.Add({tests::StandingCurves("SACR", {}, {}), Empty("LKNE")});
  variability.Add({LeftCurve("LANK", 1), LeftCurve("lkne", 1), LeftCurve("sacr", 1)});
  std::string order;
  for (const VariabilityRow& row : variability.Rows()) {
    order += row.Side == GaitSide::Left ? "L:" : "R:";
    order += row.Label + std::to_string(static_cast<int>(row.Part)) + " ";
  }
  EXPECT_EQ(order,
            "L:SACR1 L:SACR2 L:SACR3 L:LKNE1 L:LKNE2 L:LKNE3 L:LANK1 L:LANK2 L:LANK3 "
            "R:SACR1 R:SACR2 R:SACR3 ");
}

TEST(Variability, LabelWithoutACurveHasNoRow) {
  Variability variability;
  variability.Add({Empty("LKNE")});
  EXPECT_TRUE(variability.Rows().empty());
}

}  // namespace
