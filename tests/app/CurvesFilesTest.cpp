// SPDX-License-Identifier: GPL-3.0-or-later

// What the curves window gives away: saved pages, prints, pictures, tables.

#include <algorithm>
#include <filesystem>
#include <fstream>

#include <QAction>
#include <QApplication>
#include <QClipboard>
#include <QFileDialog>
#include <QImage>
#include <QLineEdit>
#include <QPrinter>
#include <QTest>

#include "app/MainWindow.h"
#include "tests/app/CurvesFixture.h"
#include "tests/app/FormFixture.h"
#include "tests/app/WindowFixture.h"

namespace {

using pages::PageKind;
using tests::ReadWholeFile;

std::vector<std::string> NamesIn(const std::filesystem::path& folder) {
  std::vector<std::string> names;
  for (const auto& entry : std::filesystem::directory_iterator(folder)) {
    names.push_back(entry.path().filename().string());
  }
  std::ranges::sort(names);
  return names;
}

class CurvesFiles : public tests::CurvesTest {
 protected:
  void StartWithThree() {
    Start();
    trials_ = ThreeTrials();
    DropAll(trials_);
    std::filesystem::create_directory(folder_ / "out");
  }

  // Answers the dialog that asks for a name.
  void TypeName(const std::filesystem::path& name) {
    boxes_.Expect([name](QDialog& dialog) {
      auto* box = dialog.findChild<QLineEdit*>(QStringLiteral("fileNameEdit"));
      ASSERT_NE(box, nullptr);
      box->setText(QString::fromStdString(name.string()));
      QTest::keyClick(box, Qt::Key_Return);
    });
  }

  QStringList FilesForTool() const {
    QStringList files;
    for (const std::string& trial : trials_) files << QString::fromStdString(trial);
    return files;
  }

  std::vector<std::string> trials_;
};

TEST_F(CurvesFiles, APageIsSavedInEachOfTheThreeForms) {
  StartWithThree();
  const std::map<std::string, std::string> beginnings = {
      {"page.pdf", "%PDF-"}, {"page.svg", "<?xml"}, {"page.png", "\x89PNG"}};
  for (const auto& [name, beginning] : beginnings) {
    TypeName(folder_ / "out" / name);
    Entry("mnuSavePage")->trigger();
    WaitUntilRead();
    EXPECT_TRUE(ReadWholeFile(folder_ / "out" / name).starts_with(beginning)) << name;
  }
  EXPECT_EQ(NamesIn(folder_ / "out").size(), 3U);
}

TEST_F(CurvesFiles, AreWrittenAlsoWhereTheWindowReadsAnewOrIsClosedMeanwhile) {
  StartWithThree();
  TypeName(folder_ / "out/read anew.pdf");
  Entry("mnuSavePage")->trigger();
  Entry("mnuReadAgain")->trigger();
  WaitUntilRead();
  EXPECT_TRUE(ReadWholeFile(folder_ / "out/read anew.pdf").starts_with("%PDF-"));
  TypeName(folder_ / "out/closed.pdf");
  Entry("mnuSavePage")->trigger();
  window_->close();
  EXPECT_TRUE(ReadWholeFile(folder_ / "out/closed.pdf").starts_with("%PDF-"));
}

TEST_F(CurvesFiles, AllPagesAreSavedAndThoseWithNothingToShowAreNot) {
  StartWithThree();
  TypeName(folder_ / "out/all.png");
  Entry("mnuSavePages")->trigger();
  WaitUntilRead();
  // Kinematics, kinetics, measures, variability and the label of three trials; no scores.
  const auto names = NamesIn(folder_ / "out");
  EXPECT_GE(names.size(), 4U);
  EXPECT_EQ(names.front(), "all-1.png");
}

TEST_F(CurvesFiles, AnExistingFileIsReplacedOnlyAfterAsking) {
  StartWithThree();
  const auto file = folder_ / "out" / "page.svg";
  std::ofstream(file) << "mine";
  TypeName(file);
  boxes_.ExpectAndClick(QStringLiteral("Cancel"));
  Entry("mnuSavePage")->trigger();
  WaitUntilRead();
  EXPECT_EQ(ReadWholeFile(file), "mine");
  TypeName(file);
  boxes_.ExpectAndClick(QStringLiteral("Replace"));
  Entry("mnuSavePage")->trigger();
  WaitUntilRead();
  EXPECT_TRUE(ReadWholeFile(file).starts_with("<?xml"));
  ASSERT_EQ(boxes_.Seen().size(), 2U);
  EXPECT_TRUE(boxes_.Seen()[0].Text.contains(QString::fromStdString(file.string())));
}

TEST_F(CurvesFiles, APageOfEachFormIsReplacedByAnotherOfIt) {
  StartWithThree();
  for (const char* name : {"page.pdf", "page.svg", "page.png"}) {
    const std::string file = (folder_ / "out" / name).string();
    window_->SavePages(file, {PageKind::Kinematics});
    WaitUntilRead();
    const std::string first = ReadWholeFile(file);
    boxes_.ExpectAndClick(QStringLiteral("Replace"));
    window_->SavePages(file, {PageKind::Kinetics});
    WaitUntilRead();
    EXPECT_NE(ReadWholeFile(file), first) << name;
  }
}

TEST_F(CurvesFiles, AFolderThatIsMissingIsToldAndNothingIsLeft) {
  StartWithThree();
  boxes_.ExpectAndClick(QStringLiteral("OK"));
  window_->SavePages((folder_ / "nowhere/page.pdf").string(), {PageKind::Kinematics});
  WaitUntilRead();
  ASSERT_EQ(boxes_.Seen().size(), 1U);
  EXPECT_TRUE(boxes_.Seen()[0].Text.contains(QStringLiteral("nowhere")));
}

TEST_F(CurvesFiles, ATrialIsNeverReplacedWhateverItsName) {
  StartWithThree();
  const auto file = folder_ / "out/page.svg";
  std::filesystem::copy_file(trials_[0], file);
  boxes_.ExpectAndClick(QStringLiteral("OK"));
  window_->SavePages(file.string(), {PageKind::Kinematics});
  WaitUntilRead();
  EXPECT_EQ(ReadWholeFile(file), ReadWholeFile(trials_[0]));
}

TEST_F(CurvesFiles, NormalsStandBehindTheCurvesAndAFileWithoutAnyIsToldAndLeavesNone) {
  StartWithThree();
  EXPECT_FALSE(CurvesOf("Knee flexion").Normal);
  const auto file = folder_ / "norms.csv";
  std::ofstream(file) << tests::ToolOutput(
      QStringList{QStringLiteral("--format"), QStringLiteral("csv"), QStringLiteral("norms")} +
      FilesForTool());
  window_->SetNormals(file.string());
  ASSERT_TRUE(CurvesOf("Knee flexion").Normal);
  EXPECT_NEAR(CurvesOf("Knee flexion").Normal->Mean.at(25).value_or(0), tests::KneeAt(10, 2.0),
              1e-3);
  boxes_.ExpectAndClick(QStringLiteral("OK"));
  window_->SetNormals(trials_[0]);
  EXPECT_FALSE(CurvesOf("Knee flexion").Normal);
}

TEST_F(CurvesFiles, TheTablesAreThoseOfTheTool) {
  StartWithThree();
  for (const std::string_view report : app::kVisitTables) {
    for (const char* form : {"csv", "json"}) {
      const auto file = folder_ / ("out/" + std::string(report) + '.' + form);
      window_->ExportTable(report, file.string());
      WaitUntilRead();
      QStringList arguments{QString::fromLatin1(report.data(), qsizetype(report.size())),
                            QStringLiteral("--format"), QString::fromLatin1(form)};
      if (report == "normalized") arguments << QStringLiteral("--all-labels");
      const std::string expected = tests::ToolOutput(arguments + FilesForTool());
      EXPECT_GT(expected.size(), 20U);
      EXPECT_EQ(ReadWholeFile(file), expected) << report << ' ' << form;
    }
  }
}

TEST_F(CurvesFiles, AStrideThatIsLeftOutIsInNoTable) {
  StartWithThree();
  ClickCheckMark(Stride(0, "Left stride 3"));
  const auto file = folder_ / "out/measures.csv";
  window_->ExportTable("measures", file.string());
  WaitUntilRead();
  const std::string text = ReadWholeFile(file);
  EXPECT_EQ(text.find("one.c3d,Left,3,"), std::string::npos);
  EXPECT_NE(text.find("one.c3d,Left,2,"), std::string::npos);
  EXPECT_NE(text.find("two.c3d,Left,3,"), std::string::npos);
  window_->ExportTable("visit", (folder_ / "out/visit.csv").string());
  WaitUntilRead();
  const std::string visit = ReadWholeFile(folder_ / "out/visit.csv");
  EXPECT_NE(visit.find("stride_time,s,1,0,8,"), std::string::npos) << visit;
}

TEST_F(CurvesFiles, ATrialThatVanishedIsNamedAndTheOthersAreInTheTable) {
  StartWithThree();
  std::filesystem::remove(trials_[1]);
  boxes_.ExpectAndClick(QStringLiteral("OK"));
  const auto file = folder_ / "out/summary.csv";
  window_->ExportTable("summary", file.string());
  WaitUntilRead();
  EXPECT_TRUE(boxes_.Seen().at(0).Text.contains(QString::fromStdString(trials_[1])));
  const std::string text = ReadWholeFile(file);
  EXPECT_NE(text.find("one.c3d"), std::string::npos);
  EXPECT_EQ(text.find("two.c3d"), std::string::npos);
  EXPECT_NE(text.find("three.c3d"), std::string::npos);
}

TEST_F(CurvesFiles, ThePageIsCopiedAsAPicture) {
  StartWithThree();
  QApplication::clipboard()->clear();
  View().setFocus();
  QTest::keyClick(&View(), Qt::Key_C, Qt::ControlModifier);
  const QImage copied = QApplication::clipboard()->image();
  EXPECT_GT(copied.width(), 1000);
  EXPECT_EQ(copied.pixelColor(2, 2), QColor(Qt::white)) << "also on a dark desktop";
}

TEST_F(CurvesFiles, PagesArePrinted) {
  StartWithThree();
  const auto file = folder_ / "out/print.pdf";
  QPrinter printer(QPrinter::HighResolution);
  printer.setOutputFormat(QPrinter::PdfFormat);
  printer.setOutputFileName(QString::fromStdString(file.string()));
  window_->PrintPages(printer, {PageKind::Kinematics, PageKind::Kinetics});
  EXPECT_NE(ReadWholeFile(file).find("/Type /Pages\n"), std::string::npos);
  EXPECT_NE(ReadWholeFile(file).find("\n/Count 2\n"), std::string::npos);
}

// The program's window with its menu.
class CurvesOfWindow : public tests::WindowTest {};

TEST_F(CurvesOfWindow, ThePageThatIsAskedForShowsTheOpenTrialAndFollowsTheForm) {
  Start(Write(tests::RisingKnees(0).Build(), "one.c3d"));
  EXPECT_EQ(window_.Curves(), nullptr) << "nobody has asked for it";
  Choose("mnuCurves_kinetics");
  ASSERT_NE(window_.Curves(), nullptr);
  app::CurvesWindow& curves = *window_.Curves();
  ASSERT_TRUE(QTest::qWaitFor([&] { return curves.View().HasPage() && !curves.IsBusy(); }));
  EXPECT_TRUE(curves.isVisible());
  EXPECT_FALSE(curves.isModal());
  EXPECT_EQ(curves.View().Page().Kind, PageKind::Kinetics);
  const std::string other = Write(tests::RisingKnees(10).Build(), "other.c3d");
  Drop(other);
  ASSERT_TRUE(QTest::qWaitFor(
      [&] { return curves.View().HasPage() && curves.View().Set().Files.at(0).Name == other; }));
  EXPECT_EQ(curves.TrialsOfVisit().Trials().size(), 1U);
}

TEST_F(CurvesOfWindow, ATrialThatIsReloadedIsReadAnewAndKeepsWhatIsLeftOut) {
  const std::string path = Write(tests::RisingKnees(0).Build(), "one.c3d");
  Start(path);
  Choose("mnuCurves_kinematics");
  app::CurvesWindow& curves = *window_.Curves();
  const auto isRead = [&] { return curves.View().HasPage() && !curves.IsBusy(); };
  ASSERT_TRUE(QTest::qWaitFor(isRead));
  curves.View().Lift(pages::StrideId{0, modVantrel::GaitSide::Left, 1});
  QTest::keyClick(&curves.View(), Qt::Key_Space);
  Write(tests::RisingKnees(20).Build(), "one.c3d");
  window_.activateWindow();
  ASSERT_TRUE(QTest::qWaitForWindowActive(&window_));
  PressKeysOf(Entry("mnuReload"));
  ASSERT_TRUE(QTest::qWaitFor(isRead));
  const pages::PageSet& set = curves.View().Set();
  const auto& panels = set.Pages.at(0).Panels;
  const auto knee = std::ranges::find_if(panels, [](const pages::Panel& panel) {
    return std::get<pages::CurvePanel>(panel).Title == "Knee flexion";
  });
  ASSERT_NE(knee, panels.end());
  const auto& mean = std::get<pages::CurvePanel>(*knee).Means.at(0);
  EXPECT_NEAR(mean.Mean.at(0).value_or(0), tests::KneeAt(20, 2.0), 1e-3);
  EXPECT_EQ(set.LeftStrides, 2);
}

TEST_F(CurvesOfWindow, ClosingTheProgramClosesItWhileItReads) {
  Start(Write(tests::RisingKnees(0).Build(), "one.c3d"));
  Choose("mnuCurves_kinematics");
  ASSERT_NE(window_.Curves(), nullptr);
  window_.close();
  EXPECT_EQ(window_.Curves(), nullptr);
  EXPECT_TRUE(form_.IsUnloaded());
  QTest::qWait(50);
}

}  // namespace
