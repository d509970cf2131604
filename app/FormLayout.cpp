// SPDX-License-Identifier: GPL-3.0-or-later

#include "app/FormLayout.h"

#include <variant>

#include <QLabel>
#include <QPushButton>

#include "app/CaptionButton.h"
#include "app/FormColumn.h"
#include "app/NodeTree.h"
#include "app/OutputPane.h"
#include "app/StatusLine.h"
#include "app/TextBox.h"

namespace app {

namespace {

constexpr int kColumnsEnd = 430;  // where the pane starts
constexpr int kTextBox = 24;
constexpr int kLabelWidth = 84;
constexpr int kCaptionSize = 12;

// Right of the last text box, whose row leaves room for two lines.
constexpr QRect kStatusPlace(kFormMargin + kColumnWidth - kHalfWidth, 255, kHalfWidth, 32);
constexpr QRect kCheckBoxPlace(kFormMargin, 447, kColumnWidth, 34);
constexpr QPoint kTreeLabelPlace(kFormMargin, 483);
constexpr int kTreeLabelHeight = 37;
constexpr QRect kTreePlace(kFormMargin, kTreeTop, kColumnWidth, kTreeHeight);
constexpr QRect kPanePlace(kColumnsEnd, kFormMargin,
                           kDesignSize.width() - kColumnsEnd - kFormMargin,
                           kDesignSize.height() - 2 * kFormMargin);

QString Named(const char* name) { return QString::fromLatin1(name); }

// A caption as it is read out: doubled ampersands single, runs of blanks as one.
QString Spoken(QString caption) {
  return caption.replace(QStringLiteral("&&"), QStringLiteral("&")).simplified();
}

// Makes the controls of a form in the order in which they are asked for, which is the tab order.
class FormBuilder {
 public:
  FormBuilder(QWidget& form, FormControls& controls)
      : form_(form),
        column_(new FormColumn({kColumnsEnd, kDesignSize.height()}, &form)),
        controls_(controls) {
    controls_.Column = column_;
  }

  void Add(const ButtonRow& row) {
    auto* button = new CaptionButton(QString::fromUtf16(row.Caption), column_->Content());
    Finish(*button, row.Name, button->text(), row.Place);
    controls_.Buttons.push_back({button, row.Click});
  }

  void Add(const TextBoxRow& row) {
    auto* box = new TextBox(column_->Content());
    const QString text = QString::fromUtf16(row.Label);
    Finish(*box, row.Name, text,
           {row.Place.x() + kLabelWidth, row.Place.y(), kHalfWidth - kLabelWidth, kTextBox});
    AddLabel(text, {row.Place, QSize(kLabelWidth, kTextBox)}, box);
    controls_.*row.Control = box;
    controls_.Boxes.push_back({box, row.Enter});
  }

  QLabel* AddLabel(const QString& text, const QRect& place, QWidget* buddy) {
    auto* label = new QLabel(text, column_->Content());
    label->setTextFormat(Qt::PlainText);
    label->setBuddy(buddy);
    label->setGeometry(place);
    return label;
  }

  void AddStatusLine() {
    controls_.Status = new StatusLine(column_->Content());
    controls_.Status->setObjectName(QStringLiteral("status"));
    controls_.Status->setGeometry(kStatusPlace);
    QWidget::setTabOrder(controls_.txtAnalogLabel, controls_.Status);
  }

  void AddCheckBox() {
    controls_.chkOut = new CaptionCheckBox(
        QStringLiteral("Also write output to file on your desktop (Vantrel_Output.txt)"),
        column_->Content());
    Finish(*controls_.chkOut, "chkOut", controls_.chkOut->text(), kCheckBoxPlace);
  }

  void AddTree() {
    controls_.tre = new NodeTree(column_->Content());
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
  FormColumn* column_;
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
  for (const FormRow& row : FormRows()) {
    std::visit([&builder](const auto& control) { builder.Add(control); }, row);
  }
  builder.AddStatusLine();
  builder.AddCheckBox();
  builder.AddTree();
  controls.Column->FollowTheKeys();
  builder.AddPane();
  return controls;
}

}  // namespace app
