// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QTextEdit>

namespace app {

// The text of a message box: shown and read out letter by letter as it was given, broken within a
// word only where the word is too long for a line, as paths are. It can be selected with the mouse
// and copied.
class MessageText : public QTextEdit {
  Q_OBJECT

 public:
  MessageText(const QString& text, QWidget* parent);

  // Takes the size that the text needs in lines of at most `most`.width(), in device-independent
  // pixels. A text that needs more than `most`.height() gets a scroll bar.
  void FitWithin(QSize most);

 protected:
  void keyPressEvent(QKeyEvent* event) override;
};

}  // namespace app
