// SPDX-License-Identifier: GPL-3.0-or-later

#include <gtest/gtest.h>

#include "pages/PageUnits.h"

namespace {

using modVantrel::PointKind;
using pages::ShownUnit;
using pages::UnitShownFor;

TEST(PageUnits, AnglesAreInTheirOwnUnitOrInDegrees) {
  EXPECT_EQ(UnitShownFor(PointKind::Angle, ""), (ShownUnit{"deg", 1, true}));
  EXPECT_EQ(UnitShownFor(PointKind::Angle, "deg"), (ShownUnit{"deg", 1, true}));
  EXPECT_EQ(UnitShownFor(PointKind::Angle, "degrees"), (ShownUnit{"degrees", 1, true}));
  EXPECT_EQ(UnitShownFor(PointKind::Angle, "rad"), (ShownUnit{"rad", 1, false}));
}

TEST(PageUnits, MomentsInNewtonMillimetresAreShownInNewtonMetres) {
  for (const char* unit : {"", "Nmm/kg", "N.mm/kg", "N·mm/kg", "nmm / kg"}) {
    EXPECT_EQ(UnitShownFor(PointKind::Moment, unit), (ShownUnit{"N·m/kg", 0.001, true})) << unit;
  }
  for (const char* unit : {"Nmm", "N.mm", "N mm"}) {
    EXPECT_EQ(UnitShownFor(PointKind::Moment, unit), (ShownUnit{"N·m", 0.001, false})) << unit;
  }
}

TEST(PageUnits, MomentsInNewtonMetresStay) {
  EXPECT_EQ(UnitShownFor(PointKind::Moment, "Nm/kg"), (ShownUnit{"N·m/kg", 1, true}));
  EXPECT_EQ(UnitShownFor(PointKind::Moment, "N.m"), (ShownUnit{"N·m", 1, false}));
}

TEST(PageUnits, PowersArePerKilogramWhereTheFileDoesNotSayOtherwise) {
  EXPECT_EQ(UnitShownFor(PointKind::Power, ""), (ShownUnit{"W/kg", 1, true}));
  EXPECT_EQ(UnitShownFor(PointKind::Power, "W/kg"), (ShownUnit{"W/kg", 1, true}));
  EXPECT_EQ(UnitShownFor(PointKind::Power, "W"), (ShownUnit{"W", 1, false}));
}

TEST(PageUnits, OtherUnitsAreShownAsTheFileSpellsThem) {
  EXPECT_EQ(UnitShownFor(PointKind::Moment, "lbf.ft"), (ShownUnit{"lbf.ft", 1, false}));
  EXPECT_EQ(UnitShownFor(PointKind::Power, "mW"), (ShownUnit{"mW", 1, false}));
}

TEST(PageUnits, NormalsTakeTheFactorOfTheirOwnUnit) {
  const ShownUnit perKilogram = UnitShownFor(PointKind::Moment, "");
  const ShownUnit foot = UnitShownFor(PointKind::Moment, "lbf.ft");
  EXPECT_EQ(FactorOfNormals(PointKind::Moment, "Nmm", perKilogram), 0.001);
  EXPECT_EQ(FactorOfNormals(PointKind::Moment, "Nm/kg", perKilogram), 1);
  EXPECT_EQ(FactorOfNormals(PointKind::Moment, "lbf.ft", foot), 1);
  EXPECT_EQ(FactorOfNormals(PointKind::Moment, "", foot), 0.001);
  EXPECT_EQ(FactorOfNormals(PointKind::Moment, "mm", perKilogram), 0.001);
  EXPECT_EQ(FactorOfNormals(PointKind::Angle, "degrees", UnitShownFor(PointKind::Angle, "")), 1);
}

}  // namespace
