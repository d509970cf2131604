// SPDX-License-Identifier: GPL-3.0-or-later

#include "plot/Colours.h"

namespace plot {

using modVantrel::GaitSide;

namespace {

constexpr int kQuarter = 64;  // of 255
constexpr int kPale = 56;
constexpr int kNormalStrength = 112;
constexpr int kNormalStrengthAmongGreys = 72;

QColor WithAlpha(QColor colour, int alpha) {
  colour.setAlpha(alpha);
  return colour;
}

bool IsDashed(GaitSide side, const DrawingStyle& style) {
  return side == GaitSide::Right && (style.IsMonochrome || style.Curves == Shown::Strides);
}

}  // namespace

Colours ColoursOf(const DrawingStyle& style) {
  if (style.IsDark) {
    return {QColor(0x1E1E1E), QColor(0xF0F0F0), QColor(0xB8B8B8), QColor(0x8A8A8A),
            QColor(0x3A3A3A), QColor(0x707070), QColor(0xA0A0A0)};
  }
  return {QColor(0xFFFFFF), QColor(0x101010), QColor(0x404040), QColor(0x606060),
          QColor(0xE4E4E4), QColor(0x8A8A8A), QColor(0xA0A0A0)};
}

QColor ColourOf(GaitSide side, const DrawingStyle& style) {
  const bool isLeft = side == GaitSide::Left;
  if (side == GaitSide::None) return ColoursOf(style).Quiet;
  const auto either = [&](QRgb left, QRgb right) { return QColor(isLeft ? left : right); };
  if (style.IsMonochrome) {
    return style.IsDark ? either(0xFFFFFF, 0xA8A8A8) : either(0x000000, 0x606060);
  }
  return style.IsDark ? either(0xFF6B6B, 0x64B5F6) : either(0xD32F2F, 0x1565C0);
}

QColor BandOf(GaitSide side, const DrawingStyle& style) {
  return WithAlpha(ColourOf(side, style), kQuarter);
}

QColor NormalBandOf(const DrawingStyle& style) {
  return WithAlpha(ColoursOf(style).Normal,
                   style.IsMonochrome ? kNormalStrengthAmongGreys : kNormalStrength);
}

QPen PlainLine(const QColor& colour, double width) {
  return {colour, width, Qt::SolidLine, Qt::FlatCap, Qt::RoundJoin};
}

QPen SolidLineOf(GaitSide side, double width, const DrawingStyle& style) {
  return PlainLine(ColourOf(side, style), width);
}

QPen LineOf(GaitSide side, double width, const DrawingStyle& style) {
  constexpr double kDash = 32;
  constexpr double kGap = 16;
  QPen pen = SolidLineOf(side, width, style);
  if (IsDashed(side, style)) pen.setDashPattern({kDash / width, kGap / width});
  return pen;
}

QPen PaleLineOf(GaitSide side, double width, const DrawingStyle& style) {
  QPen pen = LineOf(side, width, style);
  pen.setColor(WithAlpha(pen.color(), kPale));
  return pen;
}

}  // namespace plot
