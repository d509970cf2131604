// SPDX-License-Identifier: GPL-3.0-or-later

#include "app/ReportPrinter.h"

#include <algorithm>
#include <cmath>
#include <utility>

#include <QPainter>

#include "app/OutputPane.h"

namespace app {

ReportPrinter::ReportPrinter(QString caption) : caption_(std::move(caption)) {
  constexpr double kMargin = 15;
  setPageMargins({kMargin, kMargin, kMargin, kMargin}, QPageLayout::Millimeter);
}

void ReportPrinter::Print(OutputPane& pane) {
  pane.SendScintilla(QsciScintillaBase::SCI_SETPRINTCOLOURMODE,
                     static_cast<unsigned long>(QsciScintillaBase::SC_PRINT_BLACKONWHITE));
  setMagnification(LetterSteps(pane));
  setWrapMode(QsciScintilla::WrapWord);
  printRange(&pane);
}

int ReportPrinter::LetterSteps(const OutputPane& pane) const {
  constexpr int kSmallest = 6;          // points
  constexpr double kWidthToSize = 0.6;  // of the pane's letters
  constexpr double kEdge = 4;           // characters
  const auto letters = static_cast<double>(pane.LongestLine()) + kEdge;
  const double size = pageRect(QPrinter::Point).width() / (letters * kWidthToSize);
  return std::clamp(static_cast<int>(std::floor(size)), kSmallest, kPaneLetters) - kPaneLetters;
}

void ReportPrinter::formatPage(QPainter& painter, bool drawing, QRect& area, int pageNumber) {
  const int line = painter.fontMetrics().lineSpacing();
  if (drawing) {
    const QString number = QString::number(pageNumber);
    const int room = area.width() - painter.fontMetrics().horizontalAdvance(number) - line;
    painter.drawText(area, Qt::AlignLeft | Qt::AlignBottom,
                     painter.fontMetrics().elidedText(caption_, Qt::ElideLeft, room));
    painter.drawText(area, Qt::AlignRight | Qt::AlignBottom, number);
  }
  area.setBottom(area.bottom() - 2 * line);
}

}  // namespace app
