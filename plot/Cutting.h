// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <optional>
#include <vector>

#include <QPolygonF>
#include <QRectF>

// Cuts what is drawn at the borders of a panel by arithmetic: not everything that a page is written
// to can clip.
namespace plot {

// The parts of a line that lie within `room`, each a line of two points or more, or a single point
// where the line itself is one.
std::vector<QPolygonF> CutLine(const QPolygonF& line, const QRectF& room);

// The part of an area that lies within `room`; empty where there is none.
QPolygonF CutArea(const QPolygonF& area, const QRectF& room);

// The pieces of a row of points between those that are missing.
std::vector<QPolygonF> PiecesOf(const std::vector<std::optional<QPointF>>& points);

}  // namespace plot
