// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QAbstractButton>

#include "app/StatusText.h"

namespace app {

// The status of the open trial in two short lines. It is pressed like a button, by mouse, blank or
// Enter, where there is a trial, once by a double-click, too; its tooltip and what is read out is
// the whole of it.
class StatusLine : public QAbstractButton {
  Q_OBJECT

 public:
  explicit StatusLine(QWidget* parent);

  void Say(const StatusText& text);
  // Says a sentence in place of the status, as far as there is room; empty: the status again.
  void Remark(const QString& sentence);

  // The two lines as they are shown at the present width.
  QStringList ShownLines() const;

 protected:
  void paintEvent(QPaintEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;
  void mouseDoubleClickEvent(QMouseEvent* event) override;

 private:
  void Tell();
  QStringList RemarkLines() const;

  StatusText text_ = StatusWithoutFile();
  QString remark_;
};

}  // namespace app
