// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QLineEdit>

namespace app {

// A text box whose edge is seen in dark colours, too, and that tells of Enter once, however long it
// is held down. A list of proposals below it is worked by its arrow keys and goes away by Escape,
// Enter, and whenever the box is left.
class TextBox : public QLineEdit {
  Q_OBJECT

 public:
  using QLineEdit::QLineEdit;

 signals:
  void EnterPressed();

 protected:
  void focusOutEvent(QFocusEvent* event) override;
  bool event(QEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;
  void paintEvent(QPaintEvent* event) override;

 private:
  // The list of proposals; none where it is not shown.
  QWidget* ShownProposals() const;
  void HideProposals() const;
};

}  // namespace app
