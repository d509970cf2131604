// SPDX-License-Identifier: GPL-3.0-or-later

// The report commands of the form: what they put into the pane and into the desktop copy.

#include <array>
#include <functional>
#include <set>
#include <string>
#include <variant>

#include <QApplication>
#include <QEvent>
#include <QTest>

#include "app/FormRows.h"
#include "sample/TrialBuilder.h"
#include "tests/app/FormFixture.h"

namespace {

using tests::ButtonCommand;
using tests::FormTest;
using tests::ReadWholeFile;
using tests::ToolOutput;
using tests::WithoutCarriageReturns;

constexpr const char* kGuard = "A C3D file is not open.  You must open one first.";

// Every report command on the sample walk with these text boxes: group Point, param labels, point
// label ltoe, analog label fz1.
std::vector<ButtonCommand> EveryReport() {
  const auto words = [](const char* text) {
    return QString::fromLatin1(text).split(u' ', Qt::SkipEmptyParts);
  };
  return {
      {"cmdShowHeaderInfo", words("header")},
      {"cmdShowParameterHeader", words("parameter-header")},
      {"cmdShowAllGroups", words("groups")},
      {"cmdShowAllGroupsAndAllParams", words("parameters")},
      {"cmdShowMatchingGroupAndAllParams", words("parameters --group Point")},
      {"cmdShowMatchingGroupAndMatchingParam", words("parameters --group Point --param labels")},
      {"cmdShowPointLabels", words("labels")},
      {"cmdShowPointData", words("point --label ltoe")},
      {"cmdShowPointDataWithEvents", words("point --label ltoe --events")},
      {"cmdShowAnalogData", words("analog --label fz1")},
      {"cmdShowAnalogDataWithEvents", words("analog --label fz1 --events")},
      {"cmdShowStrikeOffEvents", words("events")},
      {"cmdShowSingleValueStrikeOffMeasures", words("measures")},
      {"cmdShowNormalized", words("normalized --label ltoe")},
  };
}

class FormReport : public FormTest {
 protected:
  void StartWithSample() {
    walk_ = WriteSampleWalk();
    Start(walk_);
    Type("txtGroup", QStringLiteral("Point"));
    Type("txtParam", QStringLiteral("labels"));
    Type("txtPointLabel", QStringLiteral("ltoe"));
    Type("txtAnalogLabel", QStringLiteral("fz1"));
  }

  std::string Tool(const ButtonCommand& command) {
    return ToolOutput(command.ToolArguments + QStringList(QString::fromStdString(walk_)));
  }

  std::string walk_;
};

// Does something when the pane is painted the next time, which is half-way through a report: the
// pane was cleared and no line was written yet.
class AtNextPaint : public QObject {
 public:
  AtNextPaint(QWidget* watched, std::function<void()> action) : action_(std::move(action)) {
    for (int i = 0; i < 5; ++i) QApplication::processEvents();  // paints that are due already
    watched->installEventFilter(this);
  }

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override {
    if (event->type() == QEvent::Paint) {
      watched->removeEventFilter(this);
      action_();
    }
    return false;
  }

 private:
  std::function<void()> action_;
};

TEST_F(FormReport, EveryButtonOfTheFormIsTriedHereOrWithItsOwnKind) {
  std::set<std::string> tried = {"cmdOpen", "cmdExit", "cmdWriteGcdFiles"};
  for (const ButtonCommand& command : EveryReport()) tried.insert(command.Button);
  std::set<std::string> buttons;
  for (const app::FormRow& row : app::FormRows()) {
    if (const auto* button = std::get_if<app::ButtonRow>(&row)) buttons.insert(button->Name);
  }
  EXPECT_EQ(tried, buttons);
}

TEST_F(FormReport, EveryReportPutsIntoThePaneWhatTheToolPrints) {
  StartWithSample();
  for (const ButtonCommand& command : EveryReport()) {
    Click(command.Button);
    EXPECT_FALSE(PaneText().empty()) << command.Button;
    EXPECT_EQ(PaneText(), Tool(command)) << command.Button;
  }
}

TEST_F(FormReport, EveryReportPutsTheSameIntoTheDesktopCopyWhereTheBoxIsTicked) {
  StartWithSample();
  Tick(true);
  for (const ButtonCommand& command : EveryReport()) {
    Click(command.Button);
    EXPECT_EQ(WithoutCarriageReturns(ReadWholeFile(DesktopFile())), PaneText()) << command.Button;
  }
}

TEST_F(FormReport, WithoutTheTickNoDesktopCopyIsMade) {
  StartWithSample();
  for (const ButtonCommand& command : EveryReport()) Click(command.Button);
  EXPECT_FALSE(std::filesystem::exists(DesktopFile()));
}

TEST_F(FormReport, OfTwoReportsInARowTheDesktopCopyHoldsTheSecondOnly) {
  StartWithSample();
  Tick(true);
  Click("cmdShowAllGroupsAndAllParams");
  Click("cmdShowParameterHeader");
  EXPECT_EQ(WithoutCarriageReturns(ReadWholeFile(DesktopFile())),
            ToolOutput({QStringLiteral("parameter-header"), QString::fromStdString(walk_)}));
}

TEST_F(FormReport, UntickedAgainTheCopyOfTheEarlierReportStays) {
  StartWithSample();
  Tick(true);
  Click("cmdShowParameterHeader");
  const std::string copy = ReadWholeFile(DesktopFile());
  Tick(false);
  Click("cmdShowAllGroups");
  EXPECT_EQ(ReadWholeFile(DesktopFile()), copy);
}

TEST_F(FormReport, TickedHalfWayNothingIsCopiedForNoCopyIsOpen) {
  StartWithSample();
  Click("cmdShowAllGroups");
  AtNextPaint tick(Pane()->viewport(), [this] { CheckBox()->setChecked(true); });
  Click("cmdShowStrikeOffEvents");
  EXPECT_TRUE(CheckBox()->isChecked());
  EXPECT_FALSE(std::filesystem::exists(DesktopFile()));
  EXPECT_EQ(PaneText(), ToolOutput({QStringLiteral("events"), QString::fromStdString(walk_)}));
}

TEST_F(FormReport, UntickedHalfWayTheLaterLinesAreNotCopied) {
  StartWithSample();
  Tick(true);
  Click("cmdShowAllGroups");
  AtNextPaint untick(Pane()->viewport(), [this] { CheckBox()->setChecked(false); });
  Click("cmdShowStrikeOffEvents");
  EXPECT_EQ(ReadWholeFile(DesktopFile()), "");
  EXPECT_EQ(PaneText(), ToolOutput({QStringLiteral("events"), QString::fromStdString(walk_)}));
}

TEST_F(FormReport, AfterUntickingHalfWayTheNextTickedReportIsCopiedWhole) {
  StartWithSample();
  Tick(true);
  AtNextPaint untick(Pane()->viewport(), [this] { CheckBox()->setChecked(false); });
  Click("cmdShowStrikeOffEvents");
  Tick(true);
  Click("cmdShowAllGroups");
  EXPECT_EQ(WithoutCarriageReturns(ReadWholeFile(DesktopFile())), PaneText());
}

TEST_F(FormReport, ThePaneIsEmptyAndPaintedBeforeTheFirstLineIsMade) {
  StartWithSample();
  Click("cmdShowAllGroups");
  std::string whilePainted = "not painted";
  AtNextPaint look(Pane()->viewport(), [&] { whilePainted = PaneText(); });
  Click("cmdShowStrikeOffEvents");
  EXPECT_EQ(whilePainted, "");
}

TEST_F(FormReport, TheCaretStandsAtTheEndAndTheViewAtTheStart) {
  StartWithSample();
  Click("cmdShowPointData");
  EXPECT_EQ(Pane()->SendScintilla(QsciScintilla::SCI_GETCURRENTPOS), Pane()->length());
  EXPECT_EQ(Pane()->firstVisibleLine(), 0);
}

TEST_F(FormReport, EveryCommandBeforeAFileIsOpenShowsTheGuardAndLeavesThePane) {
  Start();
  std::vector<ButtonCommand> commands = EveryReport();
  commands.push_back({"cmdWriteGcdFiles", {}});
  for (const ButtonCommand& command : commands) {
    boxes_.ExpectAndClick(QStringLiteral("OK"));
    Click(command.Button);
    ASSERT_FALSE(boxes_.Seen().empty()) << command.Button;
    const tests::SeenBox& box = boxes_.Seen().back();
    EXPECT_EQ(box.Title, QStringLiteral("Vantrel"));
    EXPECT_EQ(box.Text, QString::fromLatin1(kGuard));
    EXPECT_EQ(box.Icon, QMessageBox::NoIcon);
    EXPECT_EQ(box.Buttons, QStringList(QStringLiteral("OK")));
    EXPECT_EQ(PaneText(), "");
  }
  EXPECT_EQ(boxes_.Seen().size(), commands.size());
  EXPECT_FALSE(form_.IsUnloaded());
}

struct Rejection {
  const char* Button;
  const char* TextBox;
  const char* Message;
};

constexpr std::array kRejections = {
    Rejection{"cmdShowMatchingGroupAndAllParams", "txtGroup", "group not found"},
    Rejection{"cmdShowMatchingGroupAndMatchingParam", "txtGroup", "neither group nor param found"},
    Rejection{"cmdShowPointData", "txtPointLabel", "point label not found"},
    Rejection{"cmdShowPointDataWithEvents", "txtPointLabel", "point label not found"},
    Rejection{"cmdShowAnalogData", "txtAnalogLabel", "analog label not found"},
    Rejection{"cmdShowAnalogDataWithEvents", "txtAnalogLabel", "analog label not found"},
    Rejection{"cmdShowNormalized", "txtPointLabel", "point label not found"},
};

TEST_F(FormReport, ARejectedInputReplacesThePaneAndTouchesNoDesktopCopy) {
  StartWithSample();
  Tick(true);
  for (const Rejection& rejection : kRejections) {
    Click("cmdShowParameterHeader");
    const std::string copy = ReadWholeFile(DesktopFile());
    Type(rejection.TextBox, QStringLiteral("nobody"));
    Click(rejection.Button);
    EXPECT_EQ(PaneText(), rejection.Message) << rejection.Button;
    EXPECT_EQ(ReadWholeFile(DesktopFile()), copy) << rejection.Button;
  }
}

TEST_F(FormReport, EmptyTextBoxesAreUnknownLabelsAndGroups) {
  Start(WriteSampleWalk());
  for (const Rejection& rejection : kRejections) {
    Click(rejection.Button);
    EXPECT_EQ(PaneText(), rejection.Message) << rejection.Button;
  }
}

TEST_F(FormReport, AKnownGroupWithoutTheParamSaysSoBehindTheGroup) {
  StartWithSample();
  Type("txtParam", QStringLiteral("nothing"));
  Click("cmdShowMatchingGroupAndMatchingParam");
  EXPECT_EQ(PaneText(), "POINT\n\nparam not found\n");
}

TEST_F(FormReport, BlanksAroundAGroupTypedByHandDoNotMatter) {
  StartWithSample();
  Click("cmdShowMatchingGroupAndAllParams");
  const std::string report = PaneText();
  Type("txtGroup", QStringLiteral("  point "));
  Click("cmdShowMatchingGroupAndAllParams");
  EXPECT_EQ(PaneText(), report);
}

TEST_F(FormReport, NormalizedWithoutStridesIsRejected) {
  Start(sample::TrialBuilder().Build());
  Type("txtPointLabel", QStringLiteral("LTOE"));
  Click("cmdShowNormalized");
  EXPECT_EQ(PaneText(), "valid PIG events not found");
}

TEST_F(FormReport, WithoutADesktopTheCopyGoesToTheCurrentFolder) {
  std::filesystem::remove(folder_ / "Desktop");
  const auto before = std::filesystem::current_path();
  std::filesystem::current_path(folder_.Path());
  Start(WriteSampleWalk());
  Tick(true);
  Click("cmdShowParameterHeader");
  std::filesystem::current_path(before);
  EXPECT_EQ(WithoutCarriageReturns(ReadWholeFile(folder_ / "Vantrel_Output.txt")), PaneText());
}

TEST_F(FormReport, AMarkOfWindows1252ShowsAsItIs) {
  Start(sample::TrialBuilder()
            .SetParam("TRIAL", sample::TextParam("PLACE", "Z\xFCrich \x80"))
            .Build());
  Type("txtGroup", QStringLiteral("trial"));
  Type("txtParam", QStringLiteral("place"));
  Tick(true);
  Click("cmdShowMatchingGroupAndMatchingParam");
  EXPECT_NE(PaneText().find("'Zürich €'"), std::string::npos) << PaneText();
  EXPECT_EQ(WithoutCarriageReturns(ReadWholeFile(DesktopFile())), PaneText());
}

TEST_F(FormReport, AWaitCursorShowsWhileAReportRunsAndNotAfterwards) {
  StartWithSample();
  Qt::CursorShape whileRunning = Qt::ArrowCursor;
  AtNextPaint look(Pane()->viewport(), [&] {
    if (QGuiApplication::overrideCursor() != nullptr) {
      whileRunning = QGuiApplication::overrideCursor()->shape();
    }
  });
  Click("cmdShowPointData");
  EXPECT_EQ(whileRunning, Qt::WaitCursor);
  EXPECT_EQ(QGuiApplication::overrideCursor(), nullptr);
}

TEST_F(FormReport, ButtonsArePressedByEnterAndByTheSpaceBar) {
  StartWithSample();
  for (const Qt::Key key : {Qt::Key_Return, Qt::Key_Space}) {
    Pane()->ShowText({});
    QTest::keyClick(Button("cmdShowParameterHeader"), key);
    EXPECT_TRUE(PaneText().starts_with("ParamBlockPointer:"));
  }
}

}  // namespace
