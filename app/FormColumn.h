// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QScrollArea>

namespace app {

// The column of controls at the left of the form. Its controls keep their places; where the form is
// too small to show all of it, the column scrolls in a bar as wide as its right margin, and follows
// the keys to the control that they go to.
class FormColumn : public QScrollArea {
  Q_OBJECT

 public:
  // `size` is that of the column when all of it is seen.
  FormColumn(QSize size, QWidget* form);

  // The parent of the column's controls, which stands at the form's upper left corner.
  QWidget* Content() const { return widget(); }

  // Lets the column follow the keys to its controls; called when it holds all of them.
  void FollowTheKeys();

  // Takes its share of a form of that size. `bottom` is where the controls end, their margin
  // included.
  void FitInto(QSize form, int bottom);

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  QSize size_;
};

}  // namespace app
