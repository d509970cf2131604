// SPDX-License-Identifier: GPL-3.0-or-later

#include <string>

#include <gtest/gtest.h>

#include "c3d/ParamCatalog.h"
#include "c3d/ParameterSection.h"
#include "tests/TestTrials.h"

namespace {

using modVantrel::ParamCatalog;

TEST(ParamCatalog, FindsWhatALookupByNamesFinds) {
  for (const auto order :
       {sample::RecordOrder::GroupThenItsParams, sample::RecordOrder::ParamsBeforeGroups}) {
    sample::TrialBuilder builder;
    builder.SetParam("Own", sample::TextParam("Name", "value")).Order(order);
    tests::OpenedTrial trial(builder);
    const ParamCatalog catalog(trial.State());
    EXPECT_FALSE(catalog.Fault());
    EXPECT_EQ(catalog.Param("OWN", "NAME").TextValues.First(), "value");
    EXPECT_EQ(catalog.Param("POINT", "USED").IntegerValues.First(), 1);
    EXPECT_EQ(catalog.Param("POINT", "NAME").Id, 0);
    EXPECT_EQ(catalog.Param("NONE", "NAME").Id, 0);
  }
}

TEST(ParamCatalog, TakesTheFirstGroupAndTheFirstParameterOfAName) {
  sample::TrialBuilder builder;
  builder.EditSection([](sample::SectionSpec& section) {
    section.Group("TWICE").Params.push_back(sample::IntegerParam("N", 1));
    section.Group("TWICE").Params.push_back(sample::IntegerParam("N", 2));
    sample::GroupSpec again = section.Group("TWICE");
    again.Number = 100;
    again.Params = {sample::IntegerParam("N", 3), sample::IntegerParam("M", 4)};
    section.Groups.push_back(again);
  });
  tests::OpenedTrial trial(builder);
  const ParamCatalog catalog(trial.State());
  for (const std::string name : {"N", "M"}) {
    EXPECT_EQ(catalog.Param("TWICE", name).IntegerValues.First(),
              FindGroupAndParam(trial.State(), "TWICE", name).Param.IntegerValues.First());
  }
  EXPECT_EQ(catalog.Param("TWICE", "N").IntegerValues.First(), 1);
}

TEST(ParamCatalog, KeepsWhatStandsBeforeADamagedRecord) {
  sample::TrialBuilder builder;
  auto trial = builder.SetParam("LAST", sample::IntegerParam("N", 1)).Build();
  const std::int32_t damaged = trial.ParamPosition("LAST", "N");
  // Its type, two dimensions of 255 each and integers: more than the file holds.
  const std::int32_t type = damaged + 2 + 1 + 2;
  trial.SetByte(type, 2).SetByte(type + 1, 2).SetByte(type + 2, 255).SetByte(type + 3, 255);
  const tests::TemporaryFolder folder;
  trial.WriteTo(folder / "trial.c3d");
  modVantrel::FileState state;
  const auto outcome = ExamineC3dFile(state, (folder / "trial.c3d").string(), tests::NoEvents);
  ASSERT_TRUE(outcome.Error);
  EXPECT_EQ(static_cast<int>(outcome.Error->Number()), tests::kInputPastEndOfFile);
  EXPECT_EQ(state.PointFrameCount, 10) << "it goes on behind the fault";
  const ParamCatalog catalog(state);
  ASSERT_TRUE(catalog.Fault());
  EXPECT_EQ(catalog.Fault()->Position, damaged);
  ASSERT_TRUE(catalog.Fault()->Error);
  EXPECT_EQ(static_cast<int>(catalog.Fault()->Error->Number()), tests::kInputPastEndOfFile);
  EXPECT_EQ(catalog.Param("POINT", "USED").IntegerValues.First(), 1);
}

}  // namespace
