// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QFrame>

class QLabel;
class QLineEdit;
class QShortcut;

namespace app {

class OutputPane;

// The bar for searching the output pane. It lies over the pane's upper right corner, so it moves
// nothing, or over the lower one where it would hide what was found; in a narrow pane it is
// narrower. It is hidden until it is asked for.
class FindBar : public QFrame {
  Q_OBJECT

 public:
  explicit FindBar(OutputPane* pane);

  // Shows the bar, ready for typing; a selection within one line is taken over. Escape hides it
  // again.
  void Open();
  void FindNext() { Find(true); }
  void FindPrevious() { Find(false); }
  // Hides the bar and goes back to the pane.
  void Close();

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override;
  void showEvent(QShowEvent* event) override;
  void hideEvent(QHideEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;

 private:
  void Find(bool forward);
  void Say(const QString& result);
  void FitInto(int room);
  void TakePlace();

  OutputPane* pane_;
  QLineEdit* txtFind_;
  QLabel* lblFindResult_;
  QShortcut* escape_;  // of the whole window while the bar is shown
};

}  // namespace app
