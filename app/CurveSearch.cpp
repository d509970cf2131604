// SPDX-License-Identifier: GPL-3.0-or-later

#include "app/CurveSearch.h"

#include <algorithm>
#include <cmath>
#include <limits>
#include <utility>
#include <variant>

namespace app {

using plot::PanelView;

namespace {

constexpr double kWhole = 100;  // percent

// From values to places on the page.
class Scales {
 public:
  explicit Scales(const PanelInSight& sight) : plot_(sight.Plot), view_(sight.View) {}

  QPointF At(double percent, double value) const {
    return {plot_.left() + Share(percent, view_.LowPercent, view_.HighPercent) * plot_.width(),
            plot_.bottom() - Share(value, view_.Low, view_.High) * plot_.height()};
  }

 private:
  static double Share(double value, double low, double high) {
    return (value - low) / (high > low ? high - low : 1);
  }

  QRectF plot_;
  PanelView view_;
};

double DistanceTo(const QPointF& point, const QPointF& from, const QPointF& to) {
  const QPointF along = to - from;
  const double length = QPointF::dotProduct(along, along);
  const double share =
      length > 0 ? std::clamp(QPointF::dotProduct(point - from, along) / length, 0.0, 1.0) : 0;
  const QPointF gap = point - (from + share * along);
  return std::hypot(gap.x(), gap.y());
}

double PercentAt(std::size_t instant, std::size_t count) {
  return count > 1 ? kWhole * static_cast<double>(instant) / static_cast<double>(count - 1) : 0;
}

struct Nearest {
  double Distance = std::numeric_limits<double>::infinity();
  std::size_t Instant = 0;
  QPointF Place;
};

// How near a line with gaps comes to a point, and which of its instants lies nearest.
template <typename Values, typename PercentOf>
Nearest NearestOf(const Values& values, const Scales& scales, const QPointF& point,
                  PercentOf percentOf) {
  Nearest nearest;
  double least = nearest.Distance;
  std::optional<QPointF> before;
  for (std::size_t i = 0; i < values.size(); ++i) {
    if (!values[i]) {
      before.reset();
      continue;
    }
    const QPointF place = scales.At(percentOf(i), double{*values[i]});
    nearest.Distance = std::min(nearest.Distance, DistanceTo(point, before.value_or(place), place));
    if (const double away = std::hypot(place.x() - point.x(), place.y() - point.y());
        away < least) {
      least = away;
      nearest.Instant = i;
      nearest.Place = place;
    }
    before = place;
  }
  return nearest;
}

double PercentOfStride(std::size_t instant) {
  return static_cast<double>(visit::PercentOf(instant));
}

// The share of the trial's time, in percent, at which a frame of a trace stands.
double PercentOfTrace(const pages::Trace& trace, std::size_t frame) {
  const auto start = double{trace.Times.front()};
  const double span = double{trace.Times.back()} - start;
  return span > 0 ? kWhole * (double{trace.Times[frame]} - start) / span : 0;
}

using BestSoFar = std::pair<double, std::optional<PointedAt>>;  // with the distance

void Keep(BestSoFar& best, const Nearest& nearest, const PointedAt& what) {
  if (nearest.Distance >= best.first) return;
  best = {nearest.Distance, what};
  best.second->Instant = nearest.Instant;
  best.second->Place = nearest.Place;
}

struct Search {
  const PanelInSight& Sight;
  const plot::DrawingStyle& Style;
  const QPointF& Point;
  double Reach;

  std::optional<PointedAt> operator()(const pages::CurvePanel& panel) const {
    constexpr double kBefore = 0.5;  // of its distance: what is lifted lies in front
    BestSoFar best{Reach, {}};
    const Scales scales(Sight);
    const bool isStrides = Style.Curves == plot::Shown::Strides;
    for (const pages::Curve& curve : panel.Curves) {
      const bool isLifted = Style.Lifted == curve.Id;
      if (!isStrides && !isLifted) continue;
      Nearest nearest = NearestOf(curve.Values, scales, Point, PercentOfStride);
      if (isLifted) nearest.Distance *= kBefore;
      Keep(best, nearest, {Sight.Panel, curve.Id});
    }
    for (std::size_t i = 0; !isStrides && i < panel.Means.size(); ++i) {
      const Nearest nearest = NearestOf(panel.Means[i].Mean, scales, Point, PercentOfStride);
      Keep(best, nearest, {Sight.Panel, std::nullopt, i});
    }
    return best.second;
  }

  std::optional<PointedAt> operator()(const pages::BarPanel& panel) const {
    if (panel.Groups.empty()) return std::nullopt;
    const auto count = static_cast<double>(panel.Groups.size());
    const double place = (Point.x() - Sight.Plot.left()) / Sight.Plot.width() * count;
    const auto index = static_cast<std::size_t>(std::clamp(place, 0.0, count - 1));
    return PointedAt{Sight.Panel, std::nullopt, index, 0, Point};
  }

  std::optional<PointedAt> operator()(const pages::TracePanel& panel) const {
    const pages::Page& page = Sight.Page;
    if (!page.OverTime || page.OverTime->Times.size() != panel.Values.size()) return std::nullopt;
    BestSoFar best{Reach, {}};
    Keep(best,
         NearestOf(panel.Values, Scales(Sight), Point,
                   [&](std::size_t i) { return PercentOfTrace(*page.OverTime, i); }),
         {Sight.Panel, std::nullopt});
    return best.second;
  }
};

const pages::Curve* CurveOf(const pages::CurvePanel& panel, const pages::StrideId& stride) {
  const auto found = std::ranges::find(panel.Curves, stride, &pages::Curve::Id);
  return found == panel.Curves.end() ? nullptr : &*found;
}

std::optional<double> ValueOf(const pages::CurvePanel& panel, const PointedAt& what) {
  if (what.Instant >= visit::kInstants) return std::nullopt;
  if (!what.Stride) {
    return what.Index < panel.Means.size() ? panel.Means[what.Index].Mean.at(what.Instant)
                                           : std::nullopt;
  }
  const pages::Curve* curve = CurveOf(panel, *what.Stride);
  if (curve == nullptr || !curve->Values.at(what.Instant)) return std::nullopt;
  return double{*curve->Values.at(what.Instant)};
}

}  // namespace

PanelView WholeOf(const pages::Panel& panel) {
  return std::visit(
      [](const auto& any) {
        return PanelView{0, kWhole, any.Ordinate.Low, any.Ordinate.High};
      },
      panel);
}

std::optional<QPointF> PlaceOf(const PanelInSight& sight, const PointedAt& what) {
  const auto* curves = std::get_if<pages::CurvePanel>(&sight.Page.Panels.at(sight.Panel));
  if (curves == nullptr) return what.Place;
  const auto value = ValueOf(*curves, what);
  if (!value) return std::nullopt;
  return Scales(sight).At(PercentAt(what.Instant, visit::kInstants), *value);
}

std::optional<PointedAt> FindCurve(const PanelInSight& sight, const plot::DrawingStyle& style,
                                   const QPointF& point, double reach) {
  if (!sight.Plot.contains(point)) return std::nullopt;
  return std::visit(Search{sight, style, point, reach}, sight.Page.Panels.at(sight.Panel));
}

std::optional<PointedAt> InstantOf(const PanelInSight& sight, const pages::StrideId& stride,
                                   std::size_t from, int step) {
  PointedAt what{sight.Panel, stride, 0, from};
  if (step == 0) {
    const auto place = PlaceOf(sight, what);
    if (place) what.Place = *place;
    return place ? std::optional(what) : std::nullopt;
  }
  const std::ptrdiff_t way = step > 0 ? 1 : -1;
  for (auto i = static_cast<std::ptrdiff_t>(from) + step;
       i >= 0 && i < std::ptrdiff_t{visit::kInstants}; i += way) {
    what.Instant = static_cast<std::size_t>(i);
    if (const auto place = PlaceOf(sight, what)) {
      what.Place = *place;
      return what;
    }
  }
  return std::nullopt;
}

}  // namespace app
