// SPDX-License-Identifier: GPL-3.0-or-later

#include <algorithm>
#include <cmath>
#include <variant>

#include "plot/PageLayout.h"

namespace plot {

namespace {

// All in tenths of a point.
constexpr double kAreaOfA4 = 5953.0 * 8419.0;
constexpr double kMargin = 360;
constexpr double kHeadHeight = 430;
constexpr double kFootHeight = 130;
constexpr double kCaptionHeight = 120;
constexpr double kBelowHead = 50;
constexpr double kBetweenColumns = 30;
constexpr double kBetweenRows = 50;
constexpr double kTallest = 0.8;  // of its width, a panel that could be taller

// What a panel needs around its plot.
struct Surrounds {
  double Left = 300;  // direction words, numbers
  double Top = 132;   // title
  double Right = 70;  // half of the last number
  double Bottom = 90;
};

Surrounds SurroundsOf(const pages::Panel& panel) {
  Surrounds surrounds;
  if (const auto* bars = std::get_if<pages::BarPanel>(&panel)) {
    constexpr double kTextOfOneGroup = 290;
    constexpr double kTextOfSeveral = 430;
    surrounds.Bottom = bars->Groups.size() > 1 ? kTextOfSeveral : kTextOfOneGroup;
  }
  return surrounds;
}

struct Place {
  int Row;
  int Column;
};

Place PlaceOf(const pages::Panel& panel) {
  return std::visit([](const auto& any) { return Place{any.Row, any.Column}; }, panel);
}

QRectF CellOf(const Place& place, const pages::Page& page, const QRectF& body) {
  const double width = (body.width() - (page.Columns - 1) * kBetweenColumns) / page.Columns;
  const double height = std::min((body.height() - (page.Rows - 1) * kBetweenRows) / page.Rows,
                                 kTallest * body.width());
  return {body.left() + (place.Column - 1) * (width + kBetweenColumns),
          body.top() + (place.Row - 1) * (height + kBetweenRows), width, height};
}

QRectF Placed(const QRectF& part, const QRectF& sheet, double scale) {
  return {sheet.topLeft() + scale * part.topLeft(), scale * part.size()};
}

PageGeometry LayoutOf(const pages::Page& page, const QRectF& paper) {
  PageGeometry layout;
  const QRectF inner = paper.adjusted(kMargin, kMargin, -kMargin, -kMargin);
  layout.Sheet = paper;
  layout.Head = {inner.left(), inner.top(), inner.width(), kHeadHeight};
  layout.Foot = {inner.left(), inner.bottom() - kFootHeight, inner.width(), kFootHeight};
  const QRectF body = inner.adjusted(0, kHeadHeight + kBelowHead, 0, -kFootHeight - kCaptionHeight);
  for (const pages::Panel& panel : page.Panels) {
    const QRectF cell = CellOf(PlaceOf(panel), page, body);
    const Surrounds room = SurroundsOf(panel);
    layout.Panels.push_back(cell);
    layout.Plots.push_back(cell.adjusted(room.Left, room.Top, -room.Right, -room.Bottom));
  }
  return layout;
}

}  // namespace

double ScaleOf(const QRectF& sheet, double enlarged) {
  return enlarged * std::sqrt(sheet.width() * sheet.height() / kAreaOfA4);
}

QRectF LaidOut(const QRectF& sheet, double enlarged) {
  return {{0, 0}, sheet.size() / ScaleOf(sheet, enlarged)};
}

QRectF CaptionOf(const PageGeometry& layout) {
  return {layout.Foot.left(), layout.Foot.top() - kCaptionHeight, layout.Foot.width(),
          kCaptionHeight};
}

PageGeometry GeometryOf(const pages::Page& page, const QRectF& sheet, double enlarged) {
  const double scale = ScaleOf(sheet, enlarged);
  PageGeometry geometry = LayoutOf(page, LaidOut(sheet, enlarged));
  geometry.Sheet = sheet;
  geometry.Head = Placed(geometry.Head, sheet, scale);
  geometry.Foot = Placed(geometry.Foot, sheet, scale);
  for (QRectF& panel : geometry.Panels) panel = Placed(panel, sheet, scale);
  for (QRectF& part : geometry.Plots) part = Placed(part, sheet, scale);
  return geometry;
}

}  // namespace plot
