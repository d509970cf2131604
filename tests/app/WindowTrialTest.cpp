// SPDX-License-Identifier: GPL-3.0-or-later

// The menu of the trial: further labels, the axes of GCD files, and the subject.

#include <fstream>
#include <iterator>

#include <QComboBox>
#include <QDialogButtonBox>
#include <QLabel>
#include <QPushButton>
#include <QTest>

#include "app/MainWindow.h"
#include "app/SubjectDialog.h"
#include "tests/app/WindowFixture.h"

namespace {

using tests::ToolOutput;

sample::ParamSpec TextParam(const std::string& name, const std::vector<std::string>& texts) {
  std::vector<std::string> padded = texts;
  for (std::string& text : padded) text.resize(8, ' ');
  return {name, {8, static_cast<std::uint8_t>(texts.size())}, padded, "", false, {}};
}

// 257 points, of which the last two are named in a further table.
sample::Trial TrialWithFurtherLabels(const std::vector<std::string>& further = {"F256", "F257"}) {
  sample::TrialBuilder builder;
  std::vector<std::string> first;
  for (int i = 1; i <= 257; ++i) {
    const std::string label = "P" + std::to_string(i);
    builder.AddPoint(label, [](std::int32_t) { return std::array<float, 3>{1, 2, 3}; });
    if (i <= 255) first.push_back(label);
  }
  return builder.SetParam("POINT", TextParam("LABELS", first))
      .SetParam("POINT", TextParam("LABELS2", further))
      .Build();
}

class WindowTrial : public tests::WindowTest {
 protected:
  static std::string TextOf(const std::filesystem::path& path) {
    std::ifstream file(path, std::ios::binary);
    return {std::istreambuf_iterator<char>(file), {}};
  }
  std::filesystem::path SubjectFile() const { return folder_ / "subject.ini"; }
  std::string ReportOf(const char* button) {
    Click(button);
    return PaneText();
  }
};

TEST_F(WindowTrial, TheChecksAreOffAtFirst) {
  Start();
  EXPECT_FALSE(Entry("mnuFurtherLabels")->isChecked());
  EXPECT_FALSE(Entry("mnuAnatomicalAxes")->isChecked());
}

TEST_F(WindowTrial, FurtherLabelsAreFoundByTheReportsAsByTheToolWhileTheyAreChecked) {
  const std::string trial = Write(TrialWithFurtherLabels());
  Start(trial);
  const QString file = QString::fromStdString(trial);
  const std::string without = ToolOutput({QStringLiteral("labels"), file});
  EXPECT_EQ(ReportOf("cmdShowPointLabels"), without);
  Choose("mnuFurtherLabels");
  EXPECT_TRUE(Entry("mnuFurtherLabels")->isChecked());
  const std::string with =
      ToolOutput({QStringLiteral("--further-labels"), QStringLiteral("labels"), file});
  ASSERT_NE(with, without);
  EXPECT_EQ(ReportOf("cmdShowPointLabels"), with);
  Type("txtPointLabel", QStringLiteral("F257"));
  EXPECT_EQ(ReportOf("cmdShowPointData"),
            ToolOutput({QStringLiteral("--further-labels"), QStringLiteral("--label"),
                        QStringLiteral("F257"), QStringLiteral("point"), file}));
  ChooseByArrows(Entry("mnuFurtherLabels"));
  EXPECT_EQ(ReportOf("cmdShowPointLabels"), without);
}

TEST_F(WindowTrial, TheChecksAreRememberedAndHoldForTheNextFile) {
  Start();
  Choose("mnuFurtherLabels");
  Choose("mnuAnatomicalAxes");
  modVantrel::FileState state;
  app::MainWindow next(state);
  next.Load(Write(TrialWithFurtherLabels()));
  EXPECT_TRUE(next.findChild<QAction*>(QStringLiteral("mnuFurtherLabels"))->isChecked());
  EXPECT_TRUE(next.findChild<QAction*>(QStringLiteral("mnuAnatomicalAxes"))->isChecked());
  EXPECT_EQ(state.PointLabels[257], "F257");
  EXPECT_EQ(next.Form().Axes(), modVantrel::GcdAxes::Anatomical);
}

TEST_F(WindowTrial, ACheckThatAnotherCommandKeepsFromRunningIsNotShown) {
  Start();
  form_.RunCommand([this] { Entry("mnuFurtherLabels")->trigger(); });
  EXPECT_FALSE(Entry("mnuFurtherLabels")->isChecked());
  EXPECT_FALSE(form_.FurtherLabels());
}

TEST_F(WindowTrial, GcdFilesAreWrittenByAnatomicalAxesAsByTheTool) {
  const std::string walk = WriteSampleWalk();
  std::filesystem::create_directory(folder_ / "tool");
  (void)ToolOutput({QStringLiteral("--axes"), QStringLiteral("anatomical"),
                    QStringLiteral("--output-dir"),
                    QString::fromStdString((folder_ / "tool").string()), QStringLiteral("gcd"),
                    QString::fromStdString(walk)});
  Start(walk);
  Choose("mnuAnatomicalAxes");
  Click("cmdWriteGcdFiles");
  const std::string written = TextOf(folder_ / "walk-L1.gcd");
  EXPECT_EQ(written, TextOf(folder_ / "tool/walk-L1.gcd"));
  EXPECT_FALSE(written.empty());
}

const auto kBirth = [](app::SubjectDialog& dialog) {
  auto* birth = dialog.findChild<QLineEdit*>(QStringLiteral("txtBirth"));
  birth->selectAll();
  QTest::keyClicks(birth, QStringLiteral("1980-02-29"));
};

class WindowSubject : public WindowTrial {
 protected:
  using Use = std::function<void(app::SubjectDialog&)>;

  // Opens the dialog, lets `use` fill it in and presses a button of it.
  void Enter(const Use& use, QDialogButtonBox::StandardButton press = QDialogButtonBox::Ok) {
    boxes_.Expect([use, press](QDialog& box) {
      auto& dialog = dynamic_cast<app::SubjectDialog&>(box);
      use(dialog);
      QTest::mouseClick(dialog.findChild<QDialogButtonBox*>()->button(press), Qt::LeftButton);
    });
    Choose("mnuSubject");
  }
  static void TypeInto(app::SubjectDialog& dialog, const char* box, const QString& text) {
    auto* edit = dialog.findChild<QLineEdit*>(QLatin1String(box));
    edit->selectAll();
    QTest::keyClick(edit, Qt::Key_Delete);
    QTest::keyClicks(edit, text);
  }
  static QString SourceOf(app::SubjectDialog& dialog, const char* control) {
    return dialog.findChild<QLabel*>(QLatin1String(control) + QStringLiteral("_Source"))->text();
  }
  // The gender's line of the first GCD file, written anew.
  std::string HeaderOfGcd() {
    if (std::filesystem::exists(folder_ / "walk-L1.gcd")) {
      boxes_.ExpectAndClick(QStringLiteral("Yes to All"));
    }
    Click("cmdWriteGcdFiles");
    const std::string text = TextOf(folder_ / "walk-L1.gcd");
    return text.substr(0, 400);
  }
  // Enters a birth by keys, has it kept where that fails, and answers with what is told then.
  QString ToldWhereABirthIsKept() {
    boxes_.Expect([](QDialog& box) {
      kBirth(dynamic_cast<app::SubjectDialog&>(box));
      QTest::keyClick(&box, Qt::Key_Return);
    });
    boxes_.ExpectAndClick(QStringLiteral("Keep"));
    boxes_.ExpectAndClick(QStringLiteral("OK"));
    Choose("mnuSubject");
    EXPECT_EQ(boxes_.Seen().size(), 2U);
    return boxes_.Seen().back().Text;
  }
};

TEST_F(WindowSubject, NeedsAnOpenFile) {
  Start();
  EXPECT_FALSE(Entry("mnuSubject")->isEnabled());
}

TEST_F(WindowSubject, ShowsWhatIsKnownAndFromWhere) {
  std::ofstream(SubjectFile(), std::ios::binary) << "DOB = 1980-02-29\nDate = soon\n";
  const auto trial = sample::TrialBuilder().SetParam("SUBJECTS", TextParam("SEX", {"f"})).Build();
  Start(trial);
  Enter(
      [](app::SubjectDialog& dialog) {
        EXPECT_EQ(dialog.findChild<QComboBox*>()->currentText(), QStringLiteral("Female"));
        EXPECT_EQ(SourceOf(dialog, "cboGender"), QStringLiteral("From the trial: SUBJECTS:SEX."));
        EXPECT_EQ(dialog.findChild<QLineEdit*>(QStringLiteral("txtBirth"))->text(),
                  QStringLiteral("1980-02-29"));
        EXPECT_EQ(SourceOf(dialog, "txtBirth"), QStringLiteral("From subject.ini of the folder."));
        EXPECT_EQ(SourceOf(dialog, "txtVisit"),
                  QStringLiteral("Not known: \u201csoon\u201d (subject.ini) is no date."));
      },
      QDialogButtonBox::Ok);
  EXPECT_EQ(TextOf(SubjectFile()), "DOB = 1980-02-29\nDate = soon\n") << "nothing was changed";
}

TEST_F(WindowSubject, EveryControlHasANameAndSaysItsSource) {
  Start(WriteSampleWalk());
  Enter(
      [](app::SubjectDialog& dialog) {
        for (const char* name : {"cboGender", "txtBirth", "txtVisit"}) {
          const auto* control = dialog.findChild<QWidget*>(QLatin1String(name));
          EXPECT_FALSE(control->accessibleName().isEmpty()) << name;
          EXPECT_FALSE(control->accessibleDescription().isEmpty()) << name;
        }
      },
      QDialogButtonBox::Cancel);
}

TEST_F(WindowSubject, ADateIsCheckedWhileItIsTyped) {
  Start(WriteSampleWalk());
  Enter(
      [](app::SubjectDialog& dialog) {
        const auto* ok = dialog.findChild<QDialogButtonBox*>()->button(QDialogButtonBox::Ok);
        const auto* wrong = dialog.findChild<QLabel*>(QStringLiteral("lblWrong"));
        EXPECT_TRUE(ok->isEnabled());
        TypeInto(dialog, "txtBirth", QStringLiteral("1980-02-3"));
        EXPECT_FALSE(ok->isEnabled());
        EXPECT_TRUE(wrong->text().contains(QStringLiteral("1980-02-3")));
        TypeInto(dialog, "txtBirth", QStringLiteral("1980-02-30"));
        EXPECT_FALSE(ok->isEnabled());
        TypeInto(dialog, "txtBirth", QStringLiteral("1980-02-29"));
        EXPECT_TRUE(ok->isEnabled());
        TypeInto(dialog, "txtVisit", QStringLiteral("1979-01-01"));
        EXPECT_FALSE(ok->isEnabled()) << "before the birth";
        TypeInto(dialog, "txtVisit", QStringLiteral("2026-11-20"));
        EXPECT_TRUE(ok->isEnabled());
        EXPECT_TRUE(wrong->text().trimmed().isEmpty());
      },
      QDialogButtonBox::Cancel);
  EXPECT_FALSE(std::filesystem::exists(SubjectFile()));
}

TEST_F(WindowSubject, EnteredAndKeptStandsInTheFileAndInGcdFiles) {
  std::ofstream(SubjectFile(), std::ios::binary) << "Surgeon = x\r\n";
  Start(WriteSampleWalk());
  boxes_.Expect([](QDialog& box) {
    auto& dialog = dynamic_cast<app::SubjectDialog&>(box);
    kBirth(dialog);
    QTest::keyClick(dialog.findChild<QComboBox*>(), Qt::Key_M);
    QTest::mouseClick(dialog.findChild<QDialogButtonBox*>()->button(QDialogButtonBox::Ok),
                      Qt::LeftButton);
  });
  boxes_.ExpectAndClick(QStringLiteral("Keep"));
  Choose("mnuSubject");
  EXPECT_EQ(TextOf(SubjectFile()), "Surgeon = x\r\nGender = Male\r\nDOB = 1980-02-29\r\n");
  EXPECT_NE(HeaderOfGcd().find("Male"), std::string::npos) << "before what the trial says";
}

TEST_F(WindowSubject, NotKeptHoldsForThisTrialAlone) {
  const std::string walk = WriteSampleWalk();
  Start(walk);
  boxes_.Expect([](QDialog& box) {
    QTest::keyClick(box.findChild<QComboBox*>(), Qt::Key_M);
    QTest::keyClick(&box, Qt::Key_Return);
  });
  boxes_.ExpectAndClick(QStringLiteral("Do Not Keep"));
  Choose("mnuSubject");
  EXPECT_FALSE(std::filesystem::exists(SubjectFile()));
  EXPECT_EQ(form_.EnteredSubject().Gender, "Male");
  EXPECT_NE(HeaderOfGcd().find("Male"), std::string::npos);
  Drop(Write(SampleTrial(), "other.c3d"));
  EXPECT_EQ(form_.EnteredSubject().Gender, "");
  Drop(walk);
  EXPECT_EQ(form_.EnteredSubject().Gender, "Male");
}

TEST_F(WindowSubject, AForeignFileIsLeftAndTold) {
  std::ofstream(SubjectFile(), std::ios::binary) << std::string("\x02P\0\0", 4);
  Start(WriteSampleWalk());
  const QString told = ToldWhereABirthIsKept();
  EXPECT_TRUE(told.contains(QStringLiteral("subject.ini: it is no text")));
  EXPECT_EQ(TextOf(SubjectFile()), std::string("\x02P\0\0", 4));
  EXPECT_EQ(form_.EnteredSubject().DateOfBirth, "1980-02-29") << "it holds for this trial";
}

TEST_F(WindowSubject, AFolderInWhichNothingCanBeWrittenIsTold) {
  std::filesystem::create_directory(SubjectFile());
  Start(WriteSampleWalk());
  const QString told = ToldWhereABirthIsKept();
  EXPECT_TRUE(told.startsWith(QStringLiteral("The subject could not be kept.")));
  EXPECT_FALSE(form_.IsUnloaded());
}

TEST_F(WindowSubject, CancelChangesNothing) {
  Start(WriteSampleWalk());
  Enter(kBirth, QDialogButtonBox::Cancel);
  EXPECT_EQ(form_.EnteredSubject().DateOfBirth, "");
  EXPECT_FALSE(std::filesystem::exists(SubjectFile()));
}

}  // namespace
