// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QMessageBox>

namespace app {

// The message box of the program. Its text is taken as it stands, never as markup, stays on the
// screen however long a path in it is, can be selected, and is copied whole by the keys for
// copying. A key that is held down since before answers nothing: the question was not read yet.
class MessageBox : public QMessageBox {
  Q_OBJECT

 public:
  MessageBox(Icon icon, const QString& title, const QString& text, StandardButtons buttons,
             QWidget* owner);

  void setVisible(bool visible) override;

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;

 private:
  void ShowTextInLines();
};

}  // namespace app
