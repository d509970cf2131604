// SPDX-License-Identifier: GPL-3.0-or-later

// What the form looks like: its controls, their places and how they follow the form's size.

#include <array>
#include <map>

#include <QAccessible>
#include <QApplication>
#include <QFontDatabase>
#include <QLabel>
#include <QTest>

#include "app/FormColumn.h"
#include "app/FormLayout.h"
#include "tests/app/FormFixture.h"

namespace {

using FormLayout = tests::FormTest;

class FormResize : public tests::FormTest {
 protected:
  // On a small screen the form opens smaller.
  void StartAsDrawn() {
    Start();
    Resize(app::kDesignSize.width(), app::kDesignSize.height());
  }

  // Gives the form a size and waits until the window system has taken it.
  void Resize(int width, int height) {
    const QSize size(width, height);
    form_.resize(size);
    constexpr int kLateAnswers = 50;  // milliseconds; to earlier sizes, too
    QTest::qWait(kLateAnswers);
    EXPECT_TRUE(QTest::qWaitFor([&] { return form_.size() == size; }))
        << "a smallest size holds it";
  }
};

struct NamedCaption {
  const char* Name;
  const char16_t* Caption;
};

constexpr std::array kButtons = {
    NamedCaption{"cmdOpen", u"Open C3D"},
    NamedCaption{"cmdExit", u"Exit"},
    NamedCaption{"cmdShowHeaderInfo", u"Show Header Info"},
    NamedCaption{"cmdShowParameterHeader", u"Show Parameter Header"},
    NamedCaption{"cmdShowAllGroups", u"Show All Groups"},
    NamedCaption{"cmdShowAllGroupsAndAllParams", u"Show All Groups && All Params"},
    NamedCaption{"cmdShowMatchingGroupAndAllParams", u"Show Matching Group && All Params"},
    NamedCaption{"cmdShowMatchingGroupAndMatchingParam", u"Show Matching Group && Matching Param"},
    NamedCaption{"cmdShowPointLabels", u"Show Point Labels"},
    NamedCaption{"cmdShowPointData", u"Show Point Data for Matching Label"},
    NamedCaption{"cmdShowPointDataWithEvents", u"Show Point Data with Events for Matching Label"},
    NamedCaption{"cmdShowAnalogData", u"Show Analog Data for Matching Label"},
    NamedCaption{"cmdShowAnalogDataWithEvents", u"Show Analog Data with Events for Matching Label"},
    NamedCaption{"cmdShowStrikeOffEvents", u"Show Strike/Off Events"},
    NamedCaption{"cmdShowSingleValueStrikeOffMeasures", u"Show Single-Value Strike/Off Measures"},
    NamedCaption{"cmdShowNormalized",
                 u"Show Normalized (cubic spline, 51 points) Data for Label && Stride Events"},
    NamedCaption{"cmdWriteGcdFiles", u"Write GCD Files"},
};

constexpr std::array kTextBoxes = {
    NamedCaption{"txtGroup", u"Group name"},
    NamedCaption{"txtParam", u"Param name"},
    NamedCaption{"txtPointLabel", u"Point label"},
    NamedCaption{"txtAnalogLabel", u"Analog label"},
};

QLabel* LabelOf(QWidget* form, const QWidget* control) {
  for (QLabel* label : form->findChildren<QLabel*>()) {
    if (label->buddy() == control) return label;
  }
  return nullptr;
}

// The controls of the form, the pane included, with their labels.
QList<QWidget*> ControlsOf(const app::frmVantrel& form) {
  auto* column = form.findChild<app::FormColumn*>();
  QList<QWidget*> controls =
      column->Content()->findChildren<QWidget*>(QString(), Qt::FindDirectChildrenOnly);
  return controls << form.findChild<app::OutputPane*>();
}

TEST_F(FormLayout, IsTitledVantrelBeforeAFileIsOpen) {
  Start();
  EXPECT_EQ(form_.windowTitle(), QStringLiteral("Vantrel"));
}

TEST_F(FormLayout, HasEveryButtonUnderItsNameWithItsCaption) {
  for (const NamedCaption& button : kButtons) {
    EXPECT_EQ(Button(button.Name)->text(), QString::fromUtf16(button.Caption)) << button.Name;
  }
  EXPECT_EQ(form_.findChildren<app::CaptionButton*>().size(), qsizetype{kButtons.size()});
}

TEST_F(FormLayout, HasEveryTextBoxWithItsLabelAsBuddy) {
  for (const NamedCaption& box : kTextBoxes) {
    const QLabel* label = LabelOf(&form_, Box(box.Name));
    ASSERT_NE(label, nullptr) << box.Name;
    EXPECT_EQ(label->text(), QString::fromUtf16(box.Caption));
  }
}

TEST_F(FormLayout, HasTheCheckBoxAndTheTreeWithTheirTexts) {
  EXPECT_EQ(CheckBox()->text(),
            QStringLiteral("Also write output to file on your desktop (Vantrel_Output.txt)"));
  EXPECT_FALSE(CheckBox()->isChecked());
  const QLabel* label = LabelOf(&form_, Tree());
  ASSERT_NE(label, nullptr);
  EXPECT_EQ(label->text(),
            QStringLiteral("Groups, Parameters, && Labels.                       Click to select, "
                           "double-click to show data."));
}

TEST_F(FormLayout, EveryControlIsReadOutByItsCaptionOrLabel) {
  for (const NamedCaption& button : kButtons) {
    const QString caption =
        QString::fromUtf16(button.Caption).replace(QStringLiteral("&&"), QStringLiteral("&"));
    EXPECT_EQ(Button(button.Name)->accessibleName(), caption);
  }
  for (const NamedCaption& box : kTextBoxes) {
    EXPECT_EQ(Box(box.Name)->accessibleName(), QString::fromUtf16(box.Caption));
  }
  EXPECT_EQ(CheckBox()->accessibleName(), CheckBox()->text());
  EXPECT_EQ(Tree()->accessibleName(), QStringLiteral("Groups, Parameters, & Labels"));
  EXPECT_EQ(Pane()->accessibleName(), QStringLiteral("Output"));
}

TEST_F(FormLayout, TabGoesFromLeftToRightAndThenDownwardsAndLeavesThePane) {
  Start();
  Button("cmdOpen")->setFocus();
  QPoint last(-1, -1);
  QStringList visited;
  do {
    QWidget* control = form_.focusWidget();
    visited << control->objectName();
    if (control != Pane()) {
      const QPoint place = control->geometry().center();
      EXPECT_TRUE(place.y() > last.y() + 6 || place.x() > last.x()) << visited.last().toStdString();
      last = place;
    }
    QTest::keyClick(control, Qt::Key_Tab);
  } while (form_.focusWidget() != Button("cmdOpen") && visited.size() < 50);
  EXPECT_EQ(visited.size(), qsizetype{kButtons.size() + kTextBoxes.size() + 3});
  EXPECT_EQ(visited.last(), QStringLiteral("txt"));
}

TEST_F(FormLayout, LeavesTheLeft430PixelsToTheControlsAndTheRestToThePane) {
  EXPECT_EQ(form_.size(), QSize(1180, 740));
  for (QWidget* control : ControlsOf(form_)) {
    if (control == Pane()) continue;
    EXPECT_TRUE(QRect(0, 0, 430, 740).contains(control->geometry()))
        << control->objectName().toStdString();
  }
  EXPECT_TRUE(QRect(430, 0, 750, 740).contains(Pane()->geometry()));
}

TEST_F(FormLayout, NoTwoControlsOverlap) {
  const auto controls = ControlsOf(form_);
  for (const QWidget* one : controls) {
    for (const QWidget* other : controls) {
      EXPECT_TRUE(one == other || !one->geometry().intersects(other->geometry()))
          << one->objectName().toStdString() << ' ' << other->objectName().toStdString();
    }
  }
}

void ExpectFits(const QWidget* control, int width, int flags, const QString& text) {
  const QRect needed = control->fontMetrics().boundingRect(QRect(0, 0, width, 10000), flags, text);
  EXPECT_LE(needed.height(), control->height()) << text.toStdString();
  EXPECT_LE(needed.width(), width) << text.toStdString();
}

void ExpectEveryCaptionFits(const app::frmVantrel& form) {
  for (const auto* button : form.findChildren<app::CaptionButton*>()) {
    ExpectFits(button, button->CaptionArea().width(), app::kButtonCaptionFlags, button->text());
  }
  for (const auto* box : form.findChildren<app::CaptionCheckBox*>()) {
    ExpectFits(box, box->CaptionArea().width(), app::kCheckBoxCaptionFlags, box->text());
  }
  for (const QWidget* control : ControlsOf(form)) {
    const auto* label = qobject_cast<const QLabel*>(control);
    if (label == nullptr) continue;
    ExpectFits(label, label->width(), Qt::TextWordWrap | Qt::TextShowMnemonic, label->text());
  }
}

TEST_F(FormLayout, EveryCaptionFitsItsPlaceInTheFacesOfCommonDesktops) {
  const QFont before = QApplication::font();
  int tried = 0;
  for (const auto& family : {QStringLiteral("DejaVu Sans"), QStringLiteral("Liberation Sans"),
                             QStringLiteral("Noto Sans"), QStringLiteral("Cantarell"),
                             QStringLiteral("Ubuntu"), QStringLiteral("Segoe UI")}) {
    if (!QFontDatabase::families().contains(family)) continue;
    SCOPED_TRACE(family.toStdString());
    ++tried;
    QApplication::setFont(QFont(family));
    modVantrel::FileState state;
    app::frmVantrel form(state);
    form.ensurePolished();
    ExpectEveryCaptionFits(form);
  }
  QApplication::setFont(before);
  EXPECT_GE(tried, 2) << "the project needs these two itself";
}

TEST_F(FormLayout, TheTreesLabelBreaksBetweenItsTwoSentences) {
  Start();
  const QLabel* label = LabelOf(&form_, Tree());
  const QFontMetrics letters = label->fontMetrics();
  EXPECT_LE(
      letters.horizontalAdvance(QStringLiteral("Click to select, double-click to show data.")),
      label->width());
  EXPECT_GT(letters.horizontalAdvance(
                QStringLiteral("Groups, Parameters, & Labels.                       Click")),
            label->width());
}

TEST_F(FormLayout, IsAWindowToAScreenReader) {
  Start();
  QAccessibleInterface* reader = QAccessible::queryAccessibleInterface(&form_);
  EXPECT_EQ(reader->role(), QAccessible::Window);
  EXPECT_EQ(reader->text(QAccessible::Name), QStringLiteral("Vantrel"));
}

TEST_F(FormLayout, TheHiddenHeaderOfTheTreeIsReadOutByItsLabel) {
  EXPECT_EQ(Tree()->headerItem()->text(0), QStringLiteral("Groups, Parameters, & Labels"));
}

class DarkForm : public tests::FormTest {
 protected:
  void StartInTheDark() {
    QPalette dark(QColor(43, 43, 46), QColor(35, 35, 38));
    dark.setColor(QPalette::Base, QColor(27, 27, 29));
    QApplication::setPalette(dark);
    Start();
  }
  void TearDown() override { QApplication::setPalette(before_); }

 private:
  const QPalette before_ = QApplication::palette();
};

TEST_F(DarkForm, AnUntickedBoxIsSeen) {
  StartInTheDark();
  const QImage shown = CheckBox()->grab().toImage();
  // Across the box, left of the caption: its ground and its frame.
  int lightest = 0;
  for (int x = 0; x < CheckBox()->CaptionArea().left() - 2; ++x) {
    lightest = std::max(lightest, qGray(shown.pixel(x, shown.height() / 2)));
  }
  EXPECT_GT(lightest, 100);
}

TEST_F(DarkForm, TheEdgesOfTheTextBoxesAreSeen) {
  StartInTheDark();
  QTest::keyClick(&form_, Qt::Key_F, Qt::ControlModifier);
  Button("cmdOpen")->setFocus();
  for (const char* name : {"txtGroup", "txtParam", "txtPointLabel", "txtAnalogLabel", "txtFind"}) {
    const QImage shown = Box(name)->grab().toImage();
    const int middle = shown.height() / 2;
    for (const int end : {0, shown.width() - 3}) {
      int lightest = 0;
      for (int x = end; x < end + 3; ++x) {
        lightest = std::max(lightest, qGray(shown.pixel(x, middle)));
      }
      EXPECT_GT(lightest, 100) << name;
    }
  }
}

TEST_F(FormResize, GrowingTheFormGrowsThePaneAndTheTreeByExactlyThat) {
  StartAsDrawn();
  const QRect pane = Pane()->geometry();
  const QRect tree = Tree()->geometry();
  Resize(1180 + 137, 740 + 59);
  EXPECT_EQ(Pane()->geometry(), QRect(pane.topLeft(), pane.size() + QSize(137, 59)));
  EXPECT_EQ(Tree()->geometry(), QRect(tree.topLeft(), tree.size() + QSize(0, 59)));
}

TEST_F(FormResize, ShrinkingTheFormShrinksThePaneAndTheTreeByExactlyThat) {
  StartAsDrawn();
  const QRect pane = Pane()->geometry();
  const QRect tree = Tree()->geometry();
  Resize(1180 - 301, 740 - 101);
  EXPECT_EQ(Pane()->geometry(), QRect(pane.topLeft(), pane.size() - QSize(301, 101)));
  EXPECT_EQ(Tree()->geometry(), QRect(tree.topLeft(), tree.size() - QSize(0, 101)));
}

TEST_F(FormResize, NothingElseMoves) {
  StartAsDrawn();
  std::map<const QWidget*, QRect> places;
  const auto controls = ControlsOf(form_);
  for (const QWidget* control : controls) places[control] = control->geometry();
  Resize(1500, 900);
  for (const QWidget* control : controls) {
    if (control == Pane() || control == Tree()) continue;
    EXPECT_EQ(control->geometry(), places[control]);
  }
}

TEST_F(FormResize, AWidthBelowNothingIsLeftOutAndTheHeightsStillFollow) {
  StartAsDrawn();
  const int paneWidth = Pane()->width();
  const int paneHeight = Pane()->height();
  const int treeHeight = Tree()->height();
  Resize(300, 740 - 40);
  EXPECT_EQ(Pane()->width(), paneWidth);
  EXPECT_EQ(Pane()->height(), paneHeight - 40);
  EXPECT_EQ(Tree()->height(), treeHeight - 40);
}

TEST_F(FormResize, AHeightBelowNothingIsLeftOutForEachControlByItself) {
  StartAsDrawn();
  const int treeHeight = Tree()->height();
  const int paneHeight = Pane()->height();
  Resize(1180, 740 - treeHeight - 50);
  EXPECT_EQ(Tree()->height(), treeHeight);
  EXPECT_EQ(Pane()->height(), paneHeight - treeHeight - 50);
}

TEST_F(FormResize, AWidthOfExactlyNothingIsSet) {
  StartAsDrawn();
  Resize(1180 - Pane()->width(), 740);
  EXPECT_EQ(Pane()->width(), 0);
}

TEST_F(FormResize, ToTinyAndBackGivesTheDesignAgain) {
  StartAsDrawn();
  const QRect pane = Pane()->geometry();
  const QRect tree = Tree()->geometry();
  for (const QSize size : {QSize(700, 500), QSize(120, 90), QSize(1, 1), QSize(1180, 740)}) {
    Resize(size.width(), size.height());
  }
  EXPECT_EQ(Pane()->geometry(), pane);
  EXPECT_EQ(Tree()->geometry(), tree);
}

}  // namespace
