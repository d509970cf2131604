// SPDX-License-Identifier: GPL-3.0-or-later

#include <cmath>
#include <filesystem>
#include <fstream>
#include <string>

#include <fmt/format.h>
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "tests/TestTrials.h"
#include "tests/visit/VisitWalks.h"
#include "visit/NormalFile.h"

namespace {

using modVantrel::Component;
using testing::HasSubstr;
using testing::StartsWith;
using tests::CsvOfCurve;
using tests::kNormsHeading;
using visit::NormalFault;
using visit::Normals;
using visit::NormalsOfText;

Normals Read(const std::string& text) {
  auto read = NormalsOfText(text);
  if (const auto* fault = std::get_if<NormalFault>(&read)) {
    ADD_FAILURE() << "line " << fault->Line << ": " << fault->What;
    return {};
  }
  return std::get<Normals>(read);
}

// "LINE: WHAT" of a text that is no file of normals.
std::string FaultOf(const std::string& text) {
  auto read = NormalsOfText(text);
  const auto* fault = std::get_if<NormalFault>(&read);
  return fault == nullptr ? "none" : fmt::format("{}: {}", fault->Line, fault->What);
}

std::string Csv(const std::string& rows) { return std::string(kNormsHeading) + rows; }

// The lines of a curve, `count` times `line`, behind the variable's name.
std::string GcdCurve(const std::string& name, const std::string& line, int count = 51) {
  std::string text = "!" + name + "\n";
  for (int i = 0; i < count; ++i) text += line + "\n";
  return text;
}

const std::string kGcdHeader = "#!DST-0.1 GCD normals\n$Gender\nMale\n";  // three lines

std::string Replaced(std::string text, const std::string& what, const std::string& by) {
  const auto at = text.find(what);
  EXPECT_NE(at, std::string::npos);
  return text.replace(at, what.size(), by);
}

TEST(NormalCsv, CurvesAndMeasuresAreRead) {
  const Normals normals =
      Read(Csv(CsvOfCurve("KneeAngles", "x", 12.5, 2) + "walking_speed,,,1.25,0.5,4,m/s\n"));
  const visit::NormalCurve* knee = normals.Curve("kneeangles", Component::X);
  ASSERT_NE(knee, nullptr);
  EXPECT_EQ(knee->Mean[0], 12.5);
  EXPECT_EQ(knee->Mean[50], 12.5);
  EXPECT_EQ(knee->Deviation[50], 2);
  EXPECT_EQ(knee->Unit, "deg");
  EXPECT_EQ(normals.Curve("KneeAngles", Component::Y), nullptr);
  ASSERT_NE(normals.Measure("walking_speed"), nullptr);
  EXPECT_EQ(normals.Measure("walking_speed")->Mean, 1.25);
  EXPECT_EQ(normals.Measure("walking_speed")->Deviation, 0.5);
  EXPECT_EQ(normals.Measure("cadence"), nullptr);
}

TEST(NormalCsv, EachInstantTakesItsOwnPercent) {
  std::string rows;
  for (int percent = 100; percent >= 0; percent -= 2) {
    rows += fmt::format("KneeAngles,z,{},{},1,4,deg\n", percent, percent * 0.5);
  }
  const auto mean = Read(Csv(rows)).Curve("KneeAngles", Component::Z)->Mean;
  EXPECT_EQ(mean[0], 0);
  EXPECT_EQ(mean[1], 1);
  EXPECT_EQ(mean[50], 50);
}

TEST(NormalCsv, FileThatASpreadsheetSavedIsRead) {
  std::string text = Csv(CsvOfCurve("KneeAngles", "x", -1.5, 2));
  text = Replaced(text, "KneeAngles,x,0,", "\"KneeAngles\",\"x\",\"0\",");
  std::string saved = "\xEF\xBB\xBF";
  for (const char c : text) saved += c == '\n' ? "\r\n" : std::string(1, c);
  EXPECT_EQ(Read(saved).Curve("KneeAngles", Component::X)->Mean[0], -1.5);
  EXPECT_EQ(Read(saved + "\r\n\r\n").Curve("KneeAngles", Component::X)->Mean[50], -1.5)
      << "with empty lines at its end";
}

TEST(NormalCsv, MissingNumbersAreNone) {
  const std::string text = Replaced(Csv(CsvOfCurve("KneeAngles", "x", 1, 2)), "KneeAngles,x,0,1,2,",
                                    "KneeAngles,x,0,,,");
  const Normals normals = Read(text + "cadence,,,,,0,steps/min\n");
  EXPECT_TRUE(std::isnan(normals.Curve("KneeAngles", Component::X)->Mean[0]));
  EXPECT_TRUE(std::isnan(normals.Curve("KneeAngles", Component::X)->Deviation[0]));
  EXPECT_FALSE(normals.Measure("cadence")->Mean);
}

TEST(NormalCsv, LabelWithACommaOrALineEndIsOneLabel) {
  EXPECT_NE(Read(Csv(CsvOfCurve("\"a, \"\"b\"\"\"", "x", 1, 2))).Curve("a, \"b\"", Component::X),
            nullptr);
  EXPECT_NE(Read(Csv(CsvOfCurve("\"a\nb\"", "x", 1, 2))).Curve("a\nb", Component::X), nullptr);
}

TEST(NormalCsv, FileOfAnotherKindIsRefused) {
  const std::string refusal = "1: neither a table of norms as csv nor a GCD file";
  EXPECT_EQ(FaultOf(""), refusal);
  EXPECT_EQ(FaultOf("\n\n"), refusal);
  EXPECT_EQ(FaultOf("hello\n"), refusal);
  EXPECT_EQ(FaultOf("label;component;percent;mean;sd;n;unit\n"), refusal);
  EXPECT_EQ(FaultOf("label,component,percent,mean,sd,n\n"), refusal);
  EXPECT_EQ(FaultOf(std::string("\0\0\x50\x01", 4)), refusal);
}

TEST(NormalCsv, TableWithoutARowIsRefused) {
  EXPECT_EQ(FaultOf(std::string(kNormsHeading)), "1: no normals behind the names of the columns");
}

TEST(NormalCsv, FaultNamesItsLine) {
  const std::string curve = CsvOfCurve("KneeAngles", "x", 1, 2);  // lines 2 to 52
  EXPECT_EQ(FaultOf(Csv(curve + "KneeAngles,y,0,1,2,4\n")), "53: 6 fields where there should be 7");
  EXPECT_EQ(FaultOf(Csv(curve + " ,y,0,1,2,4,deg\n")), "53: no label");
  EXPECT_EQ(FaultOf(Csv(curve + "KneeAngles,y,0,1.2.3,2,4,deg\n")), "53: '1.2.3' is no number");
  EXPECT_EQ(FaultOf(Csv(curve + "KneeAngles,y,0,1,nan,4,deg\n")), "53: 'nan' is no number");
  EXPECT_EQ(FaultOf(Csv(curve + "KneeAngles,y,0,1,1e999,4,deg\n")), "53: '1e999' is no number");
  EXPECT_EQ(FaultOf(Csv(curve + "KneeAngles,y,0,1,2,many,deg\n")), "53: 'many' is no number");
  EXPECT_EQ(FaultOf(Csv(curve + "KneeAngles,w,0,1,2,4,deg\n")),
            "53: the component is x, y or z, not 'w'");
  EXPECT_EQ(FaultOf(Csv(curve + "KneeAngles,,0,1,2,4,deg\n")),
            "53: the component is x, y or z, not ''");
  EXPECT_EQ(FaultOf(Csv(curve + "KneeAngles,y,3,1,2,4,deg\n")),
            "53: the percent is 0, 2 ... 100, not '3'");
  EXPECT_EQ(FaultOf(Csv(curve + "KneeAngles,y,,1,2,4,deg\n")),
            "53: the percent is 0, 2 ... 100, not ''");
  EXPECT_EQ(FaultOf(Csv(curve + "kneeangles,X,4,1,2,4,deg\n")),
            "53: kneeangles.X stands here a second time for 4 %");
  EXPECT_EQ(FaultOf(Csv("cadence,,,1,2,4,x\ncadence,,,1,2,4,x\n")),
            "3: cadence stands here a second time");
}

TEST(NormalCsv, DeviationOrCountBelowZeroIsRefused) {
  const std::string curve = CsvOfCurve("KneeAngles", "x", 1, 2);  // lines 2 to 52
  EXPECT_EQ(FaultOf(Csv(curve + "KneeAngles,y,0,1,-2,4,deg\n")),
            "53: '-2' is negative, which sd cannot be");
  EXPECT_EQ(FaultOf(Csv(curve + "cadence,,,1,-0.5,4,x\n")),
            "53: '-0.5' is negative, which sd cannot be");
  EXPECT_EQ(FaultOf(Csv(curve + "cadence,,,1,2,-4,x\n")),
            "53: '-4' is negative, which n cannot be");
  EXPECT_EQ(FaultOf(Csv(curve + "cadence,,,-1,0,0,x\n")), "none");
}

TEST(NormalCsv, BlanksAroundALabelMakeNoOtherCurve) {
  const std::string curve = CsvOfCurve("KneeAngles", "x", 1, 2);  // lines 2 to 52
  EXPECT_EQ(FaultOf(Csv(curve + "KneeAngles , x,4,1,2,4,deg\n")),
            "53: KneeAngles . x stands here a second time for 4 %");
}

TEST(NormalCsv, CurveWithoutOneOfItsInstantsIsRefusedWhereItEnds) {
  const std::string text =
      Replaced(Csv(CsvOfCurve("KneeAngles", "x", 1, 2)), "KneeAngles,x,44,1,2,4,deg\n", "");
  EXPECT_EQ(FaultOf(text), "51: KneeAngles.x has no row for 44 %, this is its last");
}

TEST(NormalCsv, BrokenQuotesAreRefused) {
  EXPECT_EQ(FaultOf(Csv("\"KneeAngles,x,0,1,2,4,deg\n\n")), "2: a quote is not closed");
  EXPECT_EQ(FaultOf(Csv("cadence,,,1,2,4,x\n\"Knee\"Angles,x,0,1,2,4,deg\n")),
            "3: text behind a closed quote");
}

TEST(NormalCsv, LinesInsideQuotesAreCounted) {
  EXPECT_EQ(FaultOf(Csv("\"a\nb\",,,1,2,4,x\ncadence\n")), "4: 1 fields where there should be 7");
}

TEST(NormalGcd, CurvesAreReadByTheNamesOfTheirVariables) {
  const Normals normals =
      Read(kGcdHeader + GcdCurve("KneeFlexExt", "12.5 2.5") + GcdCurve("HipRotation", "\t-3\t1 ") +
           GcdCurve("HipAbAdduct", "4   0"));
  EXPECT_EQ(normals.Curve("KneeAngles", Component::X)->Mean[50], 12.5);
  EXPECT_EQ(normals.Curve("KneeAngles", Component::X)->Deviation[50], 2.5);
  EXPECT_EQ(normals.Curve("HipAngles", Component::Z)->Mean[0], -3);
  EXPECT_EQ(normals.Curve("HipAngles", Component::Y)->Mean[0], 4);
}

TEST(NormalGcd, MomentsComeInNewtonMetres) {
  const Normals normals =
      Read(kGcdHeader + GcdCurve("KneeFlexExtMoment", "0.5 0.25") + GcdCurve("KneePower", "2 1"));
  EXPECT_EQ(normals.Curve("KneeMoment", Component::X)->Mean[7], 500);
  EXPECT_EQ(normals.Curve("KneeMoment", Component::X)->Deviation[7], 250);
  EXPECT_EQ(normals.Curve("KneePower", Component::Z)->Mean[7], 2);
}

TEST(NormalGcd, MomentThatNoNumberCanHoldIsRefused) {
  EXPECT_EQ(FaultOf(kGcdHeader + GcdCurve("KneeFlexExtMoment", "1e307 1")),
            "5: a mean and a deviation of KneeFlexExtMoment should stand here");
}

TEST(NormalGcd, DeviationBelowZeroIsRefused) {
  EXPECT_EQ(FaultOf(kGcdHeader + GcdCurve("KneeFlexExt", "1 -2")),
            "5: a mean and a deviation of KneeFlexExt should stand here");
}

TEST(NormalGcd, VariableOfTwoLabelsStandsForBoth) {
  const Normals normals = Read(kGcdHeader + GcdCurve("TrunkFlexExt", "1 2"));
  EXPECT_NE(normals.Curve("TrunkAngles", Component::X), nullptr);
  EXPECT_NE(normals.Curve("SpineAngles", Component::X), nullptr);
}

TEST(NormalGcd, OtherVariablesAndEmptyLinesArePassedOver) {
  const Normals normals = Read(kGcdHeader + "!Cadence\n1.05\n!VideoRate\nfifty\n" +
                               GcdCurve("KneeFlexExt", "1 2\r\n") + "$Age\n12.5\n");
  EXPECT_NE(normals.Curve("KneeAngles", Component::X), nullptr);
}

TEST(NormalGcd, NameThatIsEmptyIsOfNoVariable) {
  const Normals normals = Read(kGcdHeader + "!\n1\n!Left\n1\n" + GcdCurve("KneeFlexExt", "1 2"));
  EXPECT_NE(normals.Curve("KneeAngles", Component::X), nullptr);
}

TEST(NormalGcd, FaultNamesItsLine) {
  EXPECT_EQ(FaultOf(kGcdHeader + "!KneeFlexExt\n1 2\n3\n"),
            "6: a mean and a deviation of KneeFlexExt should stand here");
  EXPECT_EQ(FaultOf(kGcdHeader + "!KneeFlexExt\n1 2 3\n"),
            "5: a mean and a deviation of KneeFlexExt should stand here");
  EXPECT_EQ(FaultOf(kGcdHeader + "!KneeFlexExt\n1,2 3\n"),
            "5: a mean and a deviation of KneeFlexExt should stand here");
  EXPECT_EQ(FaultOf(kGcdHeader + GcdCurve("KneeFlexExt", "1 2", 50) + "!HipFlexExt\n"),
            "55: KneeFlexExt ends after 50 of 51 values");
  EXPECT_EQ(FaultOf(kGcdHeader + GcdCurve("KneeFlexExt", "1 2", 50)),
            "54: KneeFlexExt ends after 50 of 51 values");
  EXPECT_EQ(FaultOf(kGcdHeader + GcdCurve("KneeFlexExt", "1 2", 52)),
            "56: KneeFlexExt has more than 51 values");
  EXPECT_EQ(FaultOf(kGcdHeader + GcdCurve("KneeFlexExt", "1 2") + GcdCurve("KneeFlexExt", "1 2")),
            "56: KneeFlexExt stands here a second time");
  EXPECT_EQ(FaultOf(kGcdHeader), "3: no normal curve in the whole file");
}

TEST(NormalGcd, FileOfOneStrideIsNoFileOfNormals) {
  EXPECT_EQ(FaultOf(kGcdHeader + "!LeftCadence\n1\n!LeftKneeFlexExt\n1\n"),
            "6: LeftKneeFlexExt is the curve of a side, normals have none");
}

TEST(NormalFile, FaultNamesFileAndLine) {
  const tests::TemporaryFolder folder;
  const std::string path = (folder / "norms.csv").string();
  std::ofstream(path, std::ios::binary) << Csv("cadence,,,1,2,4\n");
  EXPECT_EQ(std::get<std::string>(visit::ReadNormalFile(path)),
            path + ", line 2: 6 fields where there should be 7");
}

TEST(NormalFile, ReadsWhatStandsInTheFile) {
  const tests::TemporaryFolder folder;
  const std::string path = (folder / "norms.gcd").string();
  std::ofstream(path, std::ios::binary) << kGcdHeader << GcdCurve("KneeFlexExt", "1 2");
  const auto read = visit::ReadNormalFile(path);
  ASSERT_TRUE(std::holds_alternative<Normals>(read));
  EXPECT_NE(std::get<Normals>(read).Curve("KneeAngles", Component::X), nullptr);
}

// What the file does not hold takes no room on most disks.
TEST(NormalFile, OfMoreThan64MiBIsRefused) {
  const tests::TemporaryFolder folder;
  const std::string path = (folder / "norms.csv").string();
  std::ofstream(path, std::ios::binary) << kNormsHeading;
  std::filesystem::resize_file(path, 67'108'864);
  const std::string read = std::get<std::string>(visit::ReadNormalFile(path));
  EXPECT_THAT(read, StartsWith(path + ", line 2: "));
  std::filesystem::resize_file(path, 67'108'865);
  EXPECT_EQ(std::get<std::string>(visit::ReadNormalFile(path)),
            path + ": larger than any file of normals");
}

TEST(NormalFile, FileThatIsMissingIsNamed) {
  const tests::TemporaryFolder folder;
  const std::string path = (folder / "none.csv").string();
  const std::string complaint = std::get<std::string>(visit::ReadNormalFile(path));
  EXPECT_THAT(complaint, HasSubstr(path + ": Run-time error '53': File not found"));
}

}  // namespace
