// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <Qsci/qsciprinter.h>

namespace app {

class OutputPane;

// Prints what the pane shows, black on white in whatever colours it is seen, each page with
// `caption` and its number at its foot. Letters are those of the pane, smaller where that lets the
// longest line stand on the page, and no smaller than can be read: longer lines are wrapped.
class ReportPrinter : public QsciPrinter {
 public:
  explicit ReportPrinter(QString caption);

  void Print(OutputPane& pane);

  void formatPage(QPainter& painter, bool drawing, QRect& area, int pageNumber) override;

 private:
  int LetterSteps(const OutputPane& pane) const;

  QString caption_;
};

}  // namespace app
