// SPDX-License-Identifier: GPL-3.0-or-later

#include "app/FormLayout.h"

#include <array>

#include <QLabel>
#include <QLineEdit>
#include <QPushButton>

#include "app/CaptionButton.h"
#include "app/NodeTree.h"
#include "app/OutputPane.h"

namespace app {

namespace {

constexpr int kMargin = 8;
constexpr int kColumnsEnd = 430;  // where the pane starts
constexpr int kHalf = 203;
constexpr int kWhole = 414;
constexpr int kRight = kMargin + kWhole - kHalf;  // left edge of the right half
constexpr int kOneLine = 25;  // heights of buttons by the lines of their captions
constexpr int kTwoLines = 37;
constexpr int kTextBox = 24;
constexpr int kLabelWidth = 84;
constexpr int kCaptionSize = 12;

struct ButtonPlan {
  QPushButton* FormControls::*Control = nullptr;
  const char* Name = nullptr;
  const char16_t* Caption = nullptr;
  QRect Place;
};

struct TextBoxPlan {
  QLineEdit* FormControls::*Control = nullptr;
  const char* Name = nullptr;
  const char16_t* Label = nullptr;
  QPoint Place;
};

constexpr QRect Left(int top, int height) { return {kMargin, top, kHalf, height}; }
constexpr QRect Right(int top, int height) { return {kRight, top, kHalf, height}; }
constexpr QRect Whole(int top, int height) { return {kMargin, top, kWhole, height}; }

constexpr std::array kFileButtons = {
    ButtonPlan{&FormControls::cmdOpen, "cmdOpen", u"Open C3D", Left(8, kOneLine)},
    ButtonPlan{&FormControls::cmdExit, "cmdExit", u"Exit", Right(8, kOneLine)},
    ButtonPlan{&FormControls::cmdShowHeaderInfo, "cmdShowHeaderInfo", u"Show Header Info",
               Left(37, kOneLine)},
    ButtonPlan{&FormControls::cmdShowParameterHeader, "cmdShowParameterHeader",
               u"Show Parameter Header", Right(37, kOneLine)},
};

constexpr std::array kGroupBoxes = {
    TextBoxPlan{&FormControls::txtGroup, "txtGroup", u"Group name", {kMargin, 71}},
    TextBoxPlan{&FormControls::txtParam, "txtParam", u"Param name", {kRight, 71}},
};

constexpr std::array kGroupButtons = {
    ButtonPlan{&FormControls::cmdShowAllGroups, "cmdShowAllGroups", u"Show All Groups",
               Left(99, kTwoLines)},
    ButtonPlan{&FormControls::cmdShowAllGroupsAndAllParams, "cmdShowAllGroupsAndAllParams",
               u"Show All Groups && All Params", Right(99, kTwoLines)},
    ButtonPlan{&FormControls::cmdShowMatchingGroupAndAllParams, "cmdShowMatchingGroupAndAllParams",
               u"Show Matching Group && All Params", Left(140, kTwoLines)},
    ButtonPlan{&FormControls::cmdShowMatchingGroupAndMatchingParam,
               "cmdShowMatchingGroupAndMatchingParam", u"Show Matching Group && Matching Param",
               Right(140, kTwoLines)},
};

constexpr std::array kPointBoxes = {
    TextBoxPlan{&FormControls::txtPointLabel, "txtPointLabel", u"Point label", {kMargin, 186}},
};

constexpr std::array kPointButtons = {
    ButtonPlan{&FormControls::cmdShowPointLabels, "cmdShowPointLabels", u"Show Point Labels",
               Right(186, kOneLine)},
    ButtonPlan{&FormControls::cmdShowPointData, "cmdShowPointData",
               u"Show Point Data for Matching Label", Left(215, kTwoLines)},
    ButtonPlan{&FormControls::cmdShowPointDataWithEvents, "cmdShowPointDataWithEvents",
               u"Show Point Data with Events for Matching Label", Right(215, kTwoLines)},
};

constexpr std::array kAnalogBoxes = {
    TextBoxPlan{&FormControls::txtAnalogLabel, "txtAnalogLabel", u"Analog label", {kMargin, 261}},
};

constexpr std::array kAnalogButtons = {
    ButtonPlan{&FormControls::cmdShowAnalogData, "cmdShowAnalogData",
               u"Show Analog Data for Matching Label", Left(289, kTwoLines)},
    ButtonPlan{&FormControls::cmdShowAnalogDataWithEvents, "cmdShowAnalogDataWithEvents",
               u"Show Analog Data with Events for Matching Label", Right(289, kTwoLines)},
};

constexpr std::array kGaitButtons = {
    ButtonPlan{&FormControls::cmdShowStrikeOffEvents, "cmdShowStrikeOffEvents",
               u"Show Strike/Off Events", Left(335, kTwoLines)},
    ButtonPlan{&FormControls::cmdShowSingleValueStrikeOffMeasures,
               "cmdShowSingleValueStrikeOffMeasures", u"Show Single-Value Strike/Off Measures",
               Right(335, kTwoLines)},
    ButtonPlan{&FormControls::cmdShowNormalized, "cmdShowNormalized",
               u"Show Normalized (cubic spline, 51 points) Data for Label && Stride Events",
               Whole(376, kTwoLines)},
    ButtonPlan{&FormControls::cmdWriteGcdFiles, "cmdWriteGcdFiles", u"Write GCD Files",
               Whole(417, kOneLine)},
};

constexpr QRect kCheckBoxPlace = Whole(447, 34);
constexpr QPoint kTreeLabelPlace(kMargin, 483);
constexpr int kTreeLabelHeight = 37;
constexpr QRect kTreePlace(kMargin, 521, kWhole, kDesignSize.height() - kMargin - 521);
constexpr QRect kPanePlace(kColumnsEnd, kMargin, kDesignSize.width() - kColumnsEnd - kMargin,
                           kDesignSize.height() - 2 * kMargin);

QString Named(const char* name) { return QString::fromLatin1(name); }

// A caption as it is read out: doubled ampersands single, runs of blanks as one.
QString Spoken(QString caption) {
  return caption.replace(QStringLiteral("&&"), QStringLiteral("&")).simplified();
}

// Makes the controls of a form in the order in which they are asked for, which is the tab order.
class FormBuilder {
 public:
  FormBuilder(QWidget& form, FormControls& controls) : form_(form), controls_(controls) {}

  template <std::size_t Count>
  void Add(const std::array<ButtonPlan, Count>& plans) {
    for (const ButtonPlan& plan : plans) {
      auto* button = new CaptionButton(QString::fromUtf16(plan.Caption), &form_);
      Finish(*button, plan.Name, button->text(), plan.Place);
      controls_.*plan.Control = button;
    }
  }

  template <std::size_t Count>
  void Add(const std::array<TextBoxPlan, Count>& plans) {
    for (const TextBoxPlan& plan : plans) {
      auto* box = new QLineEdit(&form_);
      const QString text = QString::fromUtf16(plan.Label);
      Finish(*box, plan.Name, text,
             {plan.Place.x() + kLabelWidth, plan.Place.y(), kHalf - kLabelWidth, kTextBox});
      AddLabel(text, {plan.Place, QSize(kLabelWidth, kTextBox)}, box);
      controls_.*plan.Control = box;
    }
  }

  QLabel* AddLabel(const QString& text, const QRect& place, QWidget* buddy) {
    auto* label = new QLabel(text, &form_);
    label->setTextFormat(Qt::PlainText);
    label->setBuddy(buddy);
    label->setGeometry(place);
    return label;
  }

  void AddCheckBox() {
    controls_.chkOut = new CaptionCheckBox(
        QStringLiteral("Also write output to file on your desktop (Vantrel_Output.txt)"), &form_);
    Finish(*controls_.chkOut, "chkOut", controls_.chkOut->text(), kCheckBoxPlace);
  }

  void AddTree() {
    controls_.tre = new NodeTree(&form_);
    Finish(*controls_.tre, "tre", QStringLiteral("Groups, Parameters, && Labels"), kTreePlace);
    // As wide as its second sentence, so that the run of blanks breaks it between the two.
    const QString hint = QStringLiteral("Click to select, double-click to show data.");
    const int width = form_.fontMetrics().horizontalAdvance(hint) + 2;
    QLabel* label =
        AddLabel(QStringLiteral("Groups, Parameters, && Labels.                       ") + hint,
                 {kTreeLabelPlace, QSize(width, kTreeLabelHeight)}, controls_.tre);
    label->setWordWrap(true);
  }

  void AddPane() {
    controls_.txt = new OutputPane(&form_);
    Finish(*controls_.txt, "txt", QStringLiteral("Output"), kPanePlace);
  }

 private:
  static void Finish(QWidget& control, const char* name, const QString& spoken,
                     const QRect& place) {
    control.setObjectName(Named(name));
    control.setAccessibleName(Spoken(spoken));
    control.setGeometry(place);
  }

  QWidget& form_;
  FormControls& controls_;
};

}  // namespace

FormControls LayOutForm(QWidget& form) {
  // Places are fixed, so the letters are too: the desktop's face at one size.
  QFont font = form.font();
  font.setPixelSize(kCaptionSize);
  form.setFont(font);
  form.resize(kDesignSize);

  FormControls controls;
  FormBuilder builder(form, controls);
  builder.Add(kFileButtons);
  builder.Add(kGroupBoxes);
  builder.Add(kGroupButtons);
  builder.Add(kPointBoxes);
  builder.Add(kPointButtons);
  builder.Add(kAnalogBoxes);
  builder.Add(kAnalogButtons);
  builder.Add(kGaitButtons);
  builder.AddCheckBox();
  builder.AddTree();
  builder.AddPane();
  return controls;
}

}  // namespace app
