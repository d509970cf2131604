// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <functional>
#include <vector>

#include <QColor>
#include <QPen>
#include <QPolygonF>
#include <QRectF>
#include <QString>

class QPainter;

// What a painter is told to draw, in the units of the sheet.
namespace plot_tests {

struct DrawnText {
  QString Text;
  QRectF Ink;  // the smallest rectangle around its letters
  QColor Colour;
  bool IsBold = false;
};

struct DrawnLine {
  QPolygonF Points;
  QPen Pen;
};

struct DrawnArea {
  QPolygonF Outline;
  QColor Fill;
};

struct Recording {
  std::vector<DrawnText> Texts;
  std::vector<DrawnLine> Lines;
  std::vector<DrawnArea> Areas;
};

Recording Record(const std::function<void(QPainter&)>& draw);

}  // namespace plot_tests
