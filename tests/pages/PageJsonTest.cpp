// SPDX-License-Identifier: GPL-3.0-or-later

#include <limits>
#include <rapidjson/document.h>

#include <gtest/gtest.h>

#include "pages/PageJson.h"
#include "tests/GaitTrials.h"
#include "tests/pages/PageTrials.h"
#include "tests/visit/VisitWalks.h"
#include "visit/NormalFile.h"

namespace {

using pages::PageKind;
using tests::Standing;
using tests::TrialOfFourStrides;
using tests::ValuesOf;

using Strings = std::vector<std::string>;

rapidjson::Document Parsed(const pages::PageSet& set) {
  rapidjson::Document document;
  document.Parse(pages::JsonOf(set).c_str());
  EXPECT_FALSE(document.HasParseError());
  return document;
}

rapidjson::Document JsonOf(const std::vector<pages::TrialValues>& trials, PageKind kind,
                           pages::PageChoice choice = {}) {
  choice.Kinds = {kind};
  return Parsed(pages::MakePages(trials, choice));
}

Strings KeysOf(const rapidjson::Value& object) {
  Strings keys;
  for (const auto& member : object.GetObject()) keys.emplace_back(member.name.GetString());
  return keys;
}

sample::TrialBuilder Knees() {
  return TrialOfFourStrides()
      .AddPoint("LKneeAngles", Standing(10, 10, 10))
      .AddPoint("RKneeAngles", Standing(0.1F, 0.1F, 0.1F));
}

const rapidjson::Value& PanelAt(const rapidjson::Document& document, rapidjson::SizeType i) {
  return document["pages"][0]["panels"][i];
}

constexpr rapidjson::SizeType kKneeFlexion = 6;

TEST(PageJson, NamesProgramTitleFilesAndPages) {
  pages::PageChoice choice;
  choice.Program = "vantrel-curves 1.0.0";
  choice.Title = "Visit";
  const auto json = JsonOf({ValuesOf(Knees(), "walk.c3d")}, PageKind::Kinematics, choice);
  EXPECT_EQ(KeysOf(json), (Strings{"program", "title", "files", "pages"}));
  EXPECT_STREQ(json["program"].GetString(), "vantrel-curves 1.0.0");
  EXPECT_STREQ(json["title"].GetString(), "Visit");
  EXPECT_STREQ(json["files"][0].GetString(), "walk.c3d");
  EXPECT_EQ(KeysOf(json["pages"][0]), (Strings{"name", "rows", "columns", "panels"}));
  EXPECT_STREQ(json["pages"][0]["name"].GetString(), "kinematics");
  EXPECT_EQ(json["pages"][0]["rows"].GetInt(), 4);
  EXPECT_EQ(json["pages"][0]["columns"].GetInt(), 3);
}

TEST(PageJson, NamesTheSubjectWhereThereIsOne) {
  pages::PageChoice choice;
  choice.Subject = "A \"B\"";
  const auto json = JsonOf({}, PageKind::Kinematics, choice);
  EXPECT_EQ(KeysOf(json), (Strings{"program", "title", "subject", "files", "pages"}));
  EXPECT_STREQ(json["subject"].GetString(), "A \"B\"");
}

TEST(PageJson, PanelOfCurvesHasItsPlaceOrdinateCurvesAndMeans) {
  const auto json = JsonOf({ValuesOf(Knees(), "walk.c3d")}, PageKind::Kinematics);
  const auto& panel = PanelAt(json, kKneeFlexion);
  EXPECT_EQ(KeysOf(panel),
            (Strings{"row", "column", "title", "label", "component", "unit", "low", "high", "tick",
                     "widened", "down", "up", "curves", "means", "marks"}));
  EXPECT_STREQ(panel["label"].GetString(), "KneeAngles");
  EXPECT_STREQ(panel["component"].GetString(), "x");
  EXPECT_EQ(panel["low"].GetDouble(), -20);
  EXPECT_FALSE(panel["widened"].GetBool());
  const auto& curve = panel["curves"][0];
  EXPECT_EQ(KeysOf(curve), (Strings{"file", "side", "stride", "values"}));
  EXPECT_STREQ(curve["file"].GetString(), "walk.c3d");
  EXPECT_STREQ(curve["side"].GetString(), "Left");
  EXPECT_EQ(curve["stride"].GetInt(), 1);
  EXPECT_EQ(curve["values"].Size(), 51U);
  const auto& mean = panel["means"][1];
  EXPECT_EQ(KeysOf(mean), (Strings{"side", "n", "mean", "sd"}));
  EXPECT_EQ(mean["n"].GetInt(), 2);
  EXPECT_EQ(mean["mean"].Size(), 51U);
}

TEST(PageJson, MarksAreNamedByTheirKind) {
  const auto json = JsonOf({ValuesOf(Knees())}, PageKind::Kinematics);
  const auto& marks = PanelAt(json, kKneeFlexion)["marks"];
  ASSERT_EQ(marks.Size(), 6U);
  EXPECT_STREQ(marks[0]["kind"].GetString(), "foot_off");
  EXPECT_STREQ(marks[1]["kind"].GetString(), "opposite_foot_off");
  EXPECT_STREQ(marks[2]["kind"].GetString(), "opposite_foot_strike");
  EXPECT_STREQ(marks[3]["side"].GetString(), "Right");
  EXPECT_EQ(marks[0]["percent"].GetDouble(), 60);
}

TEST(PageJson, FloatsAreWrittenAsTheShortestTextOfTheFloat) {
  pages::PageChoice choice;
  choice.Kinds = {PageKind::Kinematics};
  const std::string text = pages::JsonOf(pages::MakePages(std::vector{ValuesOf(Knees())}, choice));
  EXPECT_NE(text.find("\"values\":[0.1,0.1,"), std::string::npos);
  EXPECT_NE(text.find("\"mean\":[0.10000000149011612,"), std::string::npos) << "a double";
  EXPECT_NE(text.find("\"low\":-20,\"high\":80,\"tick\":20,"), std::string::npos);
}

TEST(PageJson, MissingInstantsAreNull) {
  const auto values = ValuesOf(Knees().NotSeen(1, tests::kFirstLeftFrame + 3));
  const auto json = JsonOf({values}, PageKind::Kinematics);
  const auto& curve = PanelAt(json, kKneeFlexion)["curves"][0]["values"];
  EXPECT_TRUE(curve[3].IsNull());
  EXPECT_TRUE(curve[4].IsNumber());
}

TEST(PageJson, DeviationOfASingleStrideIsNullAtEveryInstant) {
  const auto values =
      ValuesOf(tests::TrialOfOneStride("Left").AddPoint("LKneeAngles", Standing(10, 10, 10)));
  const auto json = JsonOf({values}, PageKind::Kinematics);
  const auto& deviation = PanelAt(json, kKneeFlexion)["means"][0]["sd"];
  ASSERT_EQ(deviation.Size(), 51U);
  for (const auto& value : deviation.GetArray()) EXPECT_TRUE(value.IsNull());
}

class WithNormals : public testing::Test {
 protected:
  pages::PageChoice Choice() const {
    pages::PageChoice choice;
    choice.Normals = &std::get<visit::Normals>(normals_);
    return choice;
  }

 private:
  std::variant<visit::Normals, visit::NormalFault> normals_ = visit::NormalsOfText(
      std::string(tests::kNormsHeading) + tests::CsvOfCurve("KneeAngles", "x", 15, 5) +
      "cadence,,,110,8,20,steps/min\n");
};

using PageJsonWithNormals = WithNormals;

TEST_F(PageJsonWithNormals, NormalStandsBetweenMeansAndMarks) {
  const auto json = JsonOf({ValuesOf(Knees())}, PageKind::Kinematics, Choice());
  const auto& panel = PanelAt(json, kKneeFlexion);
  const Strings keys = KeysOf(panel);
  EXPECT_EQ(Strings(keys.end() - 3, keys.end()), (Strings{"means", "normal", "marks"}));
  EXPECT_EQ(KeysOf(panel["normal"]), (Strings{"mean", "sd"}));
  EXPECT_EQ(panel["normal"]["mean"].Size(), 51U);
  EXPECT_EQ(panel["normal"]["sd"][50].GetDouble(), 5);
  EXPECT_FALSE(PanelAt(json, 0).HasMember("normal"));
}

TEST_F(PageJsonWithNormals, MeasuresHaveTheColumnsOfTheirTable) {
  const auto json = JsonOf({ValuesOf(Knees())}, PageKind::Measures, Choice());
  ASSERT_EQ(json["pages"][0]["panels"].Size(), 12U);
  const Strings keys = {"row",     "column", "title",      "measure",  "unit",    "left_mean",
                        "left_sd", "left_n", "right_mean", "right_sd", "right_n", "asymmetry"};
  EXPECT_EQ(KeysOf(PanelAt(json, 0)), keys);
  const auto& cadence = PanelAt(json, 1);
  EXPECT_STREQ(cadence["measure"].GetString(), "cadence");
  EXPECT_NEAR(cadence["left_mean"].GetDouble(), 120 * 64 / 50.0, 1e-9);
  EXPECT_EQ(cadence["left_n"].GetInt(), 2);
  EXPECT_EQ(cadence["normal"]["mean"].GetDouble(), 110);
  EXPECT_EQ(cadence["normal"]["sd"].GetDouble(), 8);
  EXPECT_TRUE(PanelAt(json, 0)["left_mean"].IsNull()) << "there are no toe markers";
}

TEST_F(PageJsonWithNormals, ScoresAreTheRowsOfTheirTable) {
  const auto json = JsonOf({ValuesOf(Knees())}, PageKind::Scores, Choice());
  const auto& rows = json["pages"][0]["panels"];
  ASSERT_EQ(rows.Size(), 21U);
  EXPECT_EQ(KeysOf(rows[0]), (Strings{"side", "variable", "score", "n", "unit"}));
  EXPECT_STREQ(rows[6]["variable"].GetString(), "KneeAngles.x");
  EXPECT_EQ(rows[6]["score"].GetDouble(), 5);
  EXPECT_STREQ(rows[9]["side"].GetString(), "Right");
  EXPECT_STREQ(rows[18]["variable"].GetString(), "GPS");
  EXPECT_STREQ(rows[20]["side"].GetString(), "Overall");
  EXPECT_TRUE(rows[20]["score"].IsNull());
  EXPECT_EQ(json["pages"][0]["notes"].Size(), 16U);
}

TEST(PageJson, ScoresWithoutNormalsHaveNoRowAndANote) {
  const auto json = JsonOf({ValuesOf(Knees())}, PageKind::Scores);
  EXPECT_EQ(json["pages"][0]["panels"].Size(), 0U);
  EXPECT_EQ(json["pages"][0]["notes"].Size(), 1U);
}

TEST(PageJson, VariabilityAddsTheDeviationOfEachSide) {
  const auto json = JsonOf({ValuesOf(Knees())}, PageKind::Variability);
  const auto& deviations = PanelAt(json, kKneeFlexion)["deviations"];
  ASSERT_EQ(deviations.Size(), 2U);
  EXPECT_EQ(KeysOf(deviations[0]), (Strings{"side", "sd"}));
}

TEST(PageJson, LabelOverTimeHasItsTimesCoordinatesAndEvents) {
  auto builder = TrialOfFourStrides();
  builder.AddPoint("LKNE", tests::Moving({0, 0, 0}, {1, 2, 3})).NotSeen(1, 2);
  auto values = ValuesOf(builder, Strings{"LKNE"});
  values.File = "walk.c3d";
  const auto json = JsonOf({values}, PageKind::Label);
  const auto& page = json["pages"][0];
  EXPECT_EQ(KeysOf(page), (Strings{"name", "rows", "columns", "label", "file", "time", "x", "y",
                                   "z", "unit", "events", "panels"}));
  EXPECT_STREQ(page["file"].GetString(), "walk.c3d");
  EXPECT_EQ(page["time"].Size(), 161U);
  EXPECT_EQ(page["z"][0].GetDouble(), 3);
  EXPECT_TRUE(page["z"][1].IsNull());
  EXPECT_EQ(KeysOf(page["events"][0]), (Strings{"side", "type", "time"}));
  EXPECT_STREQ(page["events"][0]["type"].GetString(), "Foot Strike");
  EXPECT_EQ(KeysOf(page["panels"][2]),
            (Strings{"row", "column", "component", "low", "high", "tick"}));
}

TEST(PageJson, BytesThatAreNoUtf8AreReplaced) {
  const auto json = JsonOf({ValuesOf(Knees(), "a\xFF.c3d")}, PageKind::Measures);
  EXPECT_STREQ(json["files"][0].GetString(), "a\xEF\xBF\xBD.c3d");
}

TEST(PageJson, NumbersThatAreNotFiniteAreNull) {
  pages::PageSet set;
  pages::Page page;
  pages::CurvePanel panel;
  panel.Marks = {{modVantrel::GaitSide::Left, pages::MarkKind::FootOff,
                  std::numeric_limits<double>::infinity()}};
  page.Panels.emplace_back(panel);
  set.Pages.push_back(page);
  EXPECT_TRUE(Parsed(set)["pages"][0]["panels"][0]["marks"][0]["percent"].IsNull());
}

}  // namespace
