// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <string_view>
#include <vector>

#include <QColor>
#include <QPointF>
#include <QString>

#include "plot/Fonts.h"

class QPainter;

// Texts of a page: measured, shortened and set. Lengths are tenths of a point.
namespace plot {

struct TextStyle {
  Face Font = Face::Regular;
  int Size = 0;
  QColor Colour;
};

enum class Align { Left, Centre, Right };

// A text of a page's values (UTF-8) for the toolkit, blanks in place of what is no sign: control
// characters have no place on a line, nor in a file of SVG.
QString TextOf(std::string_view text);

double WidthOf(const QString& text, const TextStyle& style);

// `text`, or its beginning and end with an ellipsis between them, so that it is no wider than
// `width`: names of trials differ in their last letters as often as in their first.
QString Shortened(const QString& text, const TextStyle& style, double width);

// `style`, smaller by as much as `text` needs to be no wider than `width`, but not below `least`.
TextStyle Fitted(TextStyle style, const QString& text, double width, int least);

// `text` in lines no wider than `width`, broken between words; at most `count`, the last of which
// is shortened where the rest does not fit.
std::vector<QString> Wrapped(const QString& text, const TextStyle& style, double width,
                             std::size_t count);

// Sets `text` on a line through `base`, which is its left end, its middle or its right end.
void SetText(QPainter& painter, const QPointF& base, Align align, const QString& text,
             const TextStyle& style);

// The same, on a plate of the colour `ground` that lets little through, for a text among curves.
void SetTextOnPlate(QPainter& painter, const QPointF& base, Align align, const QString& text,
                    const TextStyle& style, QColor ground);

// As SetText, turned to be read upwards.
void SetTextUpwards(QPainter& painter, const QPointF& base, Align align, const QString& text,
                    const TextStyle& style);

}  // namespace plot
