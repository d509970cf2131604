// SPDX-License-Identifier: GPL-3.0-or-later

#include "plot/Texts.h"

#include <algorithm>

#include <QFontMetricsF>
#include <QPainter>
#include <QStringList>

namespace plot {

namespace {

double ShareInFront(Align align) {
  if (align == Align::Left) return 0;
  return align == Align::Right ? 1 : 0.5;
}

}  // namespace

QString TextOf(std::string_view text) {
  QString shown = QString::fromUtf8(text.data(), static_cast<qsizetype>(text.size()));
  for (QChar& character : shown) {
    const bool isNone =
        character.category() == QChar::Other_Control || QChar::isNonCharacter(character.unicode());
    if (isNone) character = QLatin1Char(' ');
  }
  return shown;
}

double WidthOf(const QString& text, const TextStyle& style) {
  return QFontMetricsF(FontOf(style.Font, style.Size)).horizontalAdvance(text);
}

QString Shortened(const QString& text, const TextStyle& style, double width) {
  const QFontMetricsF metrics(FontOf(style.Font, style.Size));
  if (metrics.horizontalAdvance(text) <= width) return text;
  const QString shorter = metrics.elidedText(text, Qt::ElideMiddle, width);
  return metrics.horizontalAdvance(shorter) <= width ? shorter : QString();
}

TextStyle Fitted(TextStyle style, const QString& text, double width, int least) {
  const double whole = WidthOf(text, style);
  if (whole > width) style.Size = std::max(least, static_cast<int>(style.Size * width / whole));
  return style;
}

std::vector<QString> Wrapped(const QString& text, const TextStyle& style, double width,
                             std::size_t count) {
  std::vector<QString> lines;
  for (const QString& word : text.split(QLatin1Char(' '), Qt::SkipEmptyParts)) {
    const bool isFirst = lines.empty();
    const QString longer = isFirst ? word : lines.back() + QLatin1Char(' ') + word;
    if (!isFirst && (lines.size() == count || WidthOf(longer, style) <= width)) {
      lines.back() = longer;
    } else {
      lines.push_back(word);
    }
  }
  for (QString& line : lines) line = Shortened(line, style, width);
  return lines;
}

void SetText(QPainter& painter, const QPointF& base, Align align, const QString& text,
             const TextStyle& style) {
  if (text.isEmpty()) return;
  painter.setFont(FontOf(style.Font, style.Size));
  painter.setPen(style.Colour);
  painter.drawText(base - QPointF(ShareInFront(align) * WidthOf(text, style), 0), text);
}

void SetTextOnPlate(QPainter& painter, const QPointF& base, Align align, const QString& text,
                    const TextStyle& style, QColor ground) {
  constexpr int kStrength = 200;
  constexpr double kAbove = 0.86;  // of the size, like the next two
  constexpr double kHeight = 1.14;
  constexpr double kBeside = 0.15;
  ground.setAlpha(kStrength);
  const double width = WidthOf(text, style);
  const QPointF corner = base - QPointF(ShareInFront(align) * width, kAbove * style.Size);
  painter.fillRect(QRectF(corner, QSizeF(width, kHeight * style.Size))
                       .adjusted(-kBeside * style.Size, 0, kBeside * style.Size, 0),
                   ground);
  SetText(painter, base, align, text, style);
}

void SetTextUpwards(QPainter& painter, const QPointF& base, Align align, const QString& text,
                    const TextStyle& style) {
  constexpr double kQuarter = -90;
  painter.save();
  painter.translate(base);
  painter.rotate(kQuarter);
  SetText(painter, {0, 0}, align, text, style);
  painter.restore();
}

}  // namespace plot
