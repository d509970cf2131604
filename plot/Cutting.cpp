// SPDX-License-Identifier: GPL-3.0-or-later

#include "plot/Cutting.h"

#include <algorithm>
#include <array>
#include <utility>

#include <QLineF>

namespace plot {

namespace {

// The part of a line between two of its points, as shares of its length.
using Part = std::pair<double, double>;

// Narrows `part` to where start + share * step lies from `low` to `high`; false where nothing is
// left.
bool Narrow(Part& part, double start, double step, double low, double high) {
  if (step == 0) return start >= low && start <= high;
  const auto [enter, leave] = std::minmax({(low - start) / step, (high - start) / step});
  part.first = std::max(part.first, enter);
  part.second = std::min(part.second, leave);
  return part.first <= part.second;
}

// The part of the line from `a` to `b` that lies within `room`.
std::optional<QLineF> Within(const QPointF& a, const QPointF& b, const QRectF& room) {
  Part part{0, 1};
  const QPointF step = b - a;
  if (!Narrow(part, a.x(), step.x(), room.left(), room.right()) ||
      !Narrow(part, a.y(), step.y(), room.top(), room.bottom())) {
    return std::nullopt;
  }
  return QLineF(part.first == 0 ? a : a + part.first * step,
                part.second == 1 ? b : a + part.second * step);
}

// A border of a panel: how far inside it a point lies.
using Inside = double (*)(const QPointF&, const QRectF&);

constexpr std::array<Inside, 4> kBorders = {
    [](const QPointF& point, const QRectF& room) { return point.x() - room.left(); },
    [](const QPointF& point, const QRectF& room) { return room.right() - point.x(); },
    [](const QPointF& point, const QRectF& room) { return point.y() - room.top(); },
    [](const QPointF& point, const QRectF& room) { return room.bottom() - point.y(); },
};

QPolygonF CutAt(Inside inside, const QPolygonF& area, const QRectF& room) {
  QPolygonF cut;
  for (qsizetype i = 0; i < area.size(); ++i) {
    const QPointF& from = area[i];
    const QPointF& to = area[(i + 1) % area.size()];
    const double before = inside(from, room);
    const double behind = inside(to, room);
    if (before >= 0) cut << from;
    if ((before < 0) != (behind < 0)) cut << from + before / (before - behind) * (to - from);
  }
  return cut;
}

}  // namespace

std::vector<QPolygonF> CutLine(const QPolygonF& line, const QRectF& room) {
  if (line.size() == 1) {
    return Within(line[0], line[0], room) ? std::vector{line} : std::vector<QPolygonF>();
  }
  std::vector<QPolygonF> pieces;
  bool goesOn = false;  // the last piece ends where the next part of the line begins
  for (qsizetype i = 0; i + 1 < line.size(); ++i) {
    const auto part = Within(line[i], line[i + 1], room);
    if (!part) {
      goesOn = false;
      continue;
    }
    if (!goesOn || part->p1() != line[i]) pieces.push_back({part->p1()});
    pieces.back() << part->p2();
    goesOn = part->p2() == line[i + 1];
  }
  return pieces;
}

QPolygonF CutArea(const QPolygonF& area, const QRectF& room) {
  QPolygonF cut = area;
  for (const Inside inside : kBorders) cut = CutAt(inside, cut, room);
  return cut;
}

std::vector<QPolygonF> PiecesOf(const std::vector<std::optional<QPointF>>& points) {
  std::vector<QPolygonF> pieces;
  bool isMissing = true;
  for (const auto& point : points) {
    if (point && isMissing) pieces.emplace_back();
    if (point) pieces.back() << *point;
    isMissing = !point;
  }
  return pieces;
}

}  // namespace plot
