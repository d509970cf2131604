// SPDX-License-Identifier: GPL-3.0-or-later

// Reports and tables that are saved and copied.

#include <fstream>

#include <QApplication>
#include <QClipboard>
#include <QDialogButtonBox>
#include <QFileDialog>
#include <QTest>

#include "sample/TrialBuilder.h"
#include "tests/TestTrials.h"
#include "tests/app/SaveDialog.h"
#include "tests/app/WindowFixture.h"

namespace {

class WindowSave : public tests::WindowTest {
 protected:
  void ExpectAndSave(const std::filesystem::path& path) {
    boxes_.Expect([path](QDialog& dialog) { tests::SaveAs(dialog, path); });
  }

  void PutIntoFile(const std::filesystem::path& path, const char* text) {
    std::ofstream(path) << text;
  }

  // A report under the name of its button or entry, and the arguments with which the tool makes it.
  struct TableOf {
    const char* Entry;
    QStringList Arguments;
  };
};

TEST_F(WindowSave, AReportIsSavedAsThePaneShowsItUnderTheNameOfTheTrial) {
  Start(WriteSampleWalk());
  Pane()->ShowText("gr\xC3\xBC\xC3\x9F\n");
  boxes_.Expect([this](QDialog& dialog) {
    const auto& files = dynamic_cast<QFileDialog&>(dialog);
    EXPECT_EQ(files.directory().path().toStdString(), folder_.Path().generic_string());
    auto* name = dialog.findChild<QLineEdit*>(QStringLiteral("fileNameEdit"));
    EXPECT_EQ(name->text(), QStringLiteral("walk-report.txt"));
    QTest::keyClick(&dialog, Qt::Key_Return);
  });
  Choose("mnuSaveReport");
  EXPECT_EQ(tests::ReadWholeFile(folder_ / "walk-report.txt"), "gr\xC3\xBC\xC3\x9F\n");
}

TEST_F(WindowSave, ByItsKeysAndArrowsToo) {
  Start(WriteSampleWalk());
  Click("cmdShowParameterHeader");
  ExpectAndSave(folder_ / "one.txt");
  PressKeysOf(Entry("mnuSaveReport"));
  ExpectAndSave(folder_ / "two");
  ChooseByArrows(Entry("mnuSaveReport"));
  EXPECT_EQ(tests::ReadWholeFile(folder_ / "one.txt"), PaneText());
  EXPECT_EQ(tests::ReadWholeFile(folder_ / "two.txt"), PaneText());
}

TEST_F(WindowSave, AnExistingFileIsReplacedOnlyAfterAsking) {
  Start(WriteSampleWalk());
  Click("cmdShowParameterHeader");
  PutIntoFile(folder_ / "out.txt", "old");
  ExpectAndSave(folder_ / "out.txt");
  boxes_.ExpectAndClick(QStringLiteral("Cancel"));
  boxes_.ExpectAndPress(Qt::Key_Escape);  // asked for another name
  Choose("mnuSaveReport");
  EXPECT_EQ(tests::ReadWholeFile(folder_ / "out.txt"), "old");
  ExpectAndSave(folder_ / "out.txt");
  boxes_.ExpectAndClick(QStringLiteral("Replace"));
  Choose("mnuSaveReport");
  EXPECT_EQ(tests::ReadWholeFile(folder_ / "out.txt"), PaneText());
}

TEST_F(WindowSave, EnterInTheQuestionReplacesNothing) {
  Start(WriteSampleWalk());
  PutIntoFile(folder_ / "out.txt", "old");
  ExpectAndSave(folder_ / "out.txt");
  boxes_.ExpectAndPress(Qt::Key_Return);
  boxes_.ExpectAndPress(Qt::Key_Escape);
  Choose("mnuSaveReport");
  EXPECT_EQ(tests::ReadWholeFile(folder_ / "out.txt"), "old");
}

TEST_F(WindowSave, ATrialIsNeverReplaced) {
  const std::string walk = WriteSampleWalk();
  Start(walk);
  const std::string before = tests::ReadWholeFile(walk);
  std::filesystem::create_hard_link(walk, folder_ / "twin.txt");
  ExpectAndSave(folder_ / "twin.txt");
  boxes_.ExpectAndClick(QStringLiteral("OK"));
  boxes_.ExpectAndPress(Qt::Key_Escape);
  Choose("mnuSaveReport");
  EXPECT_EQ(boxes_.Seen().back().Text.toStdString(),
            "The file '" + (folder_ / "twin.txt").string() + "' is a C3D file and stays as it is.");
  EXPECT_EQ(tests::ReadWholeFile(walk), before);
}

TEST_F(WindowSave, ATableIsWhatTheToolPrints) {
  const std::string walk = WriteSampleWalk();
  Start(walk);
  Type("txtGroup", QStringLiteral("POINT"));
  Type("txtParam", QStringLiteral("UNITS"));
  Type("txtPointLabel", QStringLiteral("LKneeAngles"));
  Type("txtAnalogLabel", QStringLiteral("Fz1"));
  const auto label = [](const char* name) {
    return QStringList{QStringLiteral("--label"), QString::fromLatin1(name)};
  };
  const QStringList group{QStringLiteral("--group"), QStringLiteral("POINT")};
  const QString parameters = QStringLiteral("parameters");
  const std::vector<TableOf> tables = {
      {"cmdShowHeaderInfo", {QStringLiteral("header")}},
      {"cmdShowAllGroupsAndAllParams", {parameters}},
      {"cmdShowMatchingGroupAndAllParams", group + QStringList{parameters}},
      {"cmdShowPointLabels", {QStringLiteral("labels")}},
      {"cmdShowPointData", label("LKneeAngles") + QStringList{QStringLiteral("point")}},
      {"cmdShowPointDataWithEvents", label("LKneeAngles") + QStringList{QStringLiteral("point")}},
      {"cmdShowStrikeOffEvents", {QStringLiteral("events")}},
      {"cmdShowSingleValueStrikeOffMeasures", {QStringLiteral("measures")}},
      {"cmdShowNormalized", label("LKneeAngles") + QStringList{QStringLiteral("normalized")}},
      {"mnuCheckup", {QStringLiteral("check")}},
      {"mnuStrides", {QStringLiteral("strides")}},
      {"mnuSummary", {QStringLiteral("summary")}},
  };
  for (const TableOf& table : tables) {
    for (const char* ending : {"csv", "json"}) {
      Entry(table.Entry)->trigger();
      const auto out = folder_ / (std::string(table.Entry) + "." + ending);
      ExpectAndSave(out);
      Choose("mnuExportTable");
      const QStringList format{QStringLiteral("--format"), QString::fromLatin1(ending)};
      EXPECT_EQ(
          tests::ReadWholeFile(out),
          tests::ToolOutput(format + table.Arguments + QStringList{QString::fromStdString(walk)}))
          << table.Entry;
    }
  }
}

TEST_F(WindowSave, ATableOfATrialThatVanishedReplacesNothingAndNamesTheTrial) {
  const std::string walk = WriteSampleWalk();
  const std::string bytes = tests::ReadWholeFile(walk);
  Start(walk);
  for (const char* report : {"cmdShowHeaderInfo", "cmdShowStrikeOffEvents", "mnuCheckup"}) {
    std::ofstream(walk, std::ios::binary) << bytes;
    Entry(report)->trigger();
    tests::TakeAway(walk);
    PutIntoFile(folder_ / "table.csv", "good");
    ExpectAndSave(folder_ / "table.csv");
    boxes_.ExpectAndClick(QStringLiteral("OK"));
    Choose("mnuExportTable");
    const std::string told = boxes_.Seen().back().Text.toStdString();
    EXPECT_EQ(told.find(walk + ": "), 0U) << told;
    EXPECT_EQ(tests::ReadWholeFile(folder_ / "table.csv"), "good") << report;
  }
}

TEST_F(WindowSave, ATableOfATrialThatHasLostItsLabelSaysSo) {
  const std::string walk = WriteSampleWalk();
  Start(walk);
  Type("txtPointLabel", QStringLiteral("LKneeAngles"));
  Click("cmdShowPointData");
  tests::WriteAnew(sample::TrialBuilder().Build(), walk);
  ExpectAndSave(folder_ / "table.csv");
  boxes_.ExpectAndClick(QStringLiteral("OK"));
  Choose("mnuExportTable");
  ASSERT_EQ(boxes_.Seen().size(), 1U);
  EXPECT_EQ(boxes_.Seen().back().Text, QStringLiteral("point label not found: LKneeAngles"));
}

TEST_F(WindowSave, OnlyAReportWithATableCanBeExported) {
  Start(WriteSampleWalk());
  EXPECT_FALSE(Entry("mnuExportTable")->isEnabled());
  Click("cmdShowHeaderInfo");
  EXPECT_TRUE(Entry("mnuExportTable")->isEnabled());
  Click("cmdShowAllGroups");
  EXPECT_FALSE(Entry("mnuExportTable")->isEnabled());
  Entry("mnuSummary")->trigger();
  EXPECT_TRUE(Entry("mnuExportTable")->isEnabled());
  Type("txtPointLabel", QStringLiteral("NOBODY"));
  Click("cmdShowPointData");  // refused
  EXPECT_FALSE(Entry("mnuExportTable")->isEnabled());
  Click("cmdShowStrikeOffEvents");
  Drop(Write(SampleTrial(), "other.c3d"));
  EXPECT_FALSE(Entry("mnuExportTable")->isEnabled());
}

TEST_F(WindowSave, CheckupStridesAndSummaryStandInThePaneAndOnTheDesktopLikeAnyReport) {
  const std::string walk = WriteSampleWalk();
  Start(walk);
  Tick(true);
  for (const char* report : {"check", "strides", "summary"}) {
    const std::string expected =
        tests::ToolOutput({QString::fromLatin1(report), QString::fromStdString(walk)});
    const std::string name =
        "mnu" + (std::string(report) == "check"
                     ? std::string("Checkup")
                     : std::string(1, char(report[0] - 'a' + 'A')) + (report + 1));
    QAction* entry = Entry(name.c_str());
    Choose(entry);
    EXPECT_EQ(PaneText(), expected);
    EXPECT_EQ(tests::WithoutCarriageReturns(tests::ReadWholeFile(DesktopFile())), expected);
    for (const bool byKeys : {true, false}) {
      Pane()->ShowText({});
      if (byKeys) {
        PressKeysOf(entry);
      } else {
        ChooseByArrows(entry);
      }
      EXPECT_EQ(PaneText(), expected);
    }
  }
}

TEST_F(WindowSave, CheckupStridesAndSummaryAreRefusedWithoutAnOpenFile) {
  Start();
  for (const char* name : {"mnuCheckup", "mnuStrides", "mnuSummary"}) {
    boxes_.ExpectAndClick(QStringLiteral("OK"));
    Choose(name);
    EXPECT_EQ(boxes_.Seen().back().Text,
              QStringLiteral("A C3D file is not open.  You must open one first."));
  }
}

class WindowCopy : public WindowSave {
 protected:
  static QString Copied() { return QApplication::clipboard()->text(); }
  void SetUp() override { QApplication::clipboard()->clear(); }
};

TEST_F(WindowCopy, CopiesWhatIsSelectedInThePane) {
  Start();
  Pane()->Append("one  two\n");
  Pane()->setFocus();
  Pane()->selectAll();
  for (const int way : {0, 1, 2}) {
    QApplication::clipboard()->clear();
    if (way == 0) Choose("mnuCopy");
    if (way == 1) ChooseByArrows(Entry("mnuCopy"));
    if (way == 2) PressKeysOf(Entry("mnuCopy"));
    EXPECT_EQ(Copied(), QStringLiteral("one  two\n")) << way;
  }
}

TEST_F(WindowCopy, CopiesFromTheTextBoxThatHasTheFocus) {
  Start();
  Pane()->Append("pane\n");
  Pane()->selectAll();
  Type("txtGroup", QStringLiteral("POINT"));
  Box("txtGroup")->selectAll();
  for (const int way : {0, 1, 2}) {
    QApplication::clipboard()->clear();
    if (way == 0) Choose("mnuCopy");
    if (way == 1) ChooseByArrows(Entry("mnuCopy"));
    if (way == 2) PressKeysOf(Entry("mnuCopy"));
    EXPECT_EQ(Copied(), QStringLiteral("POINT")) << way;
  }
}

TEST_F(WindowCopy, ASelectionIsCopiedAsATable) {
  Start(WriteSampleWalk());
  Entry("mnuStrides")->trigger();
  Pane()->setFocus();
  Pane()->selectAll();
  for (const int way : {0, 1, 2}) {
    QApplication::clipboard()->clear();
    if (way == 0) Choose("mnuCopyAsTable");
    if (way == 1) ChooseByArrows(Entry("mnuCopyAsTable"));
    if (way == 2) PressKeysOf(Entry("mnuCopyAsTable"));
    EXPECT_TRUE(Copied().startsWith(QStringLiteral("side\tnumber\tstart (s)\t"))) << way;
    EXPECT_TRUE(
        Copied().contains(QStringLiteral("\nLeft\t1\t0.500\t0.610\t1.050\t1.160\t1.600\n")));
  }
}

TEST_F(WindowCopy, ASelectionThatBeginsWithinALineKeepsItsColumns) {
  Start();
  Pane()->Append("aaa  bbb  ccc\nddd  eee  fff\n");
  Pane()->setSelection(0, 5, 1, 13);
  Choose("mnuCopyAsTable");
  EXPECT_EQ(Copied(), QStringLiteral("\tbbb\tccc\nddd\teee\tfff"));
}

TEST_F(WindowCopy, EveryRowOfAListingWithEventsHasItsColumnForThem) {
  Start(WriteSampleWalk());
  Type("txtPointLabel", QStringLiteral("LTOE"));
  Click("cmdShowPointDataWithEvents");
  Pane()->selectAll();
  Choose("mnuCopyAsTable");
  const QStringList lines = Copied().split(u'\n');
  int rows = 0;
  int events = 0;
  for (const QString& line : lines.mid(2)) {
    if (line.isEmpty()) continue;
    EXPECT_EQ(line.count(u'\t'), 5) << line.toStdString();
    ++rows;
    if (!line.startsWith(u'\t')) ++events;
  }
  EXPECT_EQ(rows, 460);
  EXPECT_GE(events, 10);
}

TEST_F(WindowCopy, WithNothingSelectedTheClipboardStays) {
  Start();
  Pane()->Append("text\n");
  QApplication::clipboard()->setText(QStringLiteral("before"));
  Choose("mnuCopyAsTable");
  EXPECT_EQ(Copied(), QStringLiteral("before"));
}

}  // namespace
