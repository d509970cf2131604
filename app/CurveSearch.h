// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstddef>
#include <optional>

#include <QPointF>
#include <QRectF>

#include "pages/Page.h"
#include "plot/PageDrawing.h"

// What lies under a point of a page.
namespace app {

// A panel on a page as it is seen.
struct PanelInSight {
  const pages::Page& Page;
  std::size_t Panel = 0;  // its place on the page, from 0
  QRectF Plot;
  plot::PanelView View;  // the part of it that is seen
};

// An instant of a curve, or a group of bars.
struct PointedAt {
  std::size_t Panel = 0;
  std::optional<pages::StrideId> Stride = {};  // of the curve of a stride
  std::size_t Index = 0;    // of the mean among the panel's, or of the group of bars
  std::size_t Instant = 0;  // of a curve: its place among the values, from 0
  QPointF Place = {};       // of the instant on the page

  friend bool operator==(const PointedAt&, const PointedAt&) = default;
};

// The whole of a panel, in the unit that it shows.
plot::PanelView WholeOf(const pages::Panel& panel);

// Where the instant of a curve stands; nothing where its value is missing or there is none. The
// curve is `what.Stride`'s, or else the mean at `what.Index`.
std::optional<QPointF> PlaceOf(const PanelInSight& sight, const PointedAt& what);

// The curve that comes nearest to `point`, at the instant nearest to it, where one of those that
// are drawn comes within `reach`; the lifted one before others. For bars the group that the point
// stands above.
std::optional<PointedAt> FindCurve(const PanelInSight& sight, const plot::DrawingStyle& style,
                                   const QPointF& point, double reach);

// The instant of a stride's curve that is `step` instants from `from`, those that are missing not
// counted; nothing where the panel has no such curve.
std::optional<PointedAt> InstantOf(const PanelInSight& sight, const pages::StrideId& stride,
                                   std::size_t from, int step);

}  // namespace app
