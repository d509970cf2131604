// SPDX-License-Identifier: GPL-3.0-or-later

#include "pages/CurvePanels.h"

#include <algorithm>
#include <cmath>
#include <iterator>
#include <string>
#include <utility>
#include <variant>

#include "pages/PageUnits.h"
#include "pages/PanelLayouts.h"
#include "pages/PanelNotes.h"
#include "pages/Ranges.h"
#include "pages/StrideMarks.h"
#include "support/Text.h"
#include "visit/Variability.h"

namespace pages {

using modVantrel::GaitSide;

namespace {

CurvePoints PointsOf(const LabelStride& stride, modVantrel::Component part, double factor) {
  CurvePoints points{};
  for (std::size_t i = 0; i < points.size(); ++i) {
    const float value = ComponentOf(stride.Curve[static_cast<std::int32_t>(i) + 1], part);
    const auto shown = static_cast<float>(double{value} * factor);
    if (!stride.Missing[i] && std::isfinite(shown)) points.at(i) = shown;
  }
  return points;
}

std::vector<Curve> CurvesOf(const ShownTrials& shown, const PanelLayout& layout, GaitSide side) {
  std::vector<Curve> curves;
  for (std::size_t file = 0; file < shown.Trials().size(); ++file) {
    const TrialValues& trial = shown.Trials()[file];
    const TrialLabel* label = shown.FindLabel(file, side, layout.Label);
    if (label == nullptr) continue;
    const double factor = UnitShownFor(layout.Kind, label->Unit).Factor;
    for (const LabelStride& stride : label->Strides) {
      const TrialStride& record = trial.Strides.at(stride.Stride);
      if (!shown.IsShown(file, record)) continue;
      curves.push_back({{file, record.Side, record.Number}, PointsOf(stride, layout.Part, factor)});
    }
  }
  return curves;
}

MeanPoints PointsOf(const visit::CurveValues& values, double factor) {
  MeanPoints points{};
  std::ranges::transform(values, points.begin(), [factor](double value) {
    return std::isfinite(value) ? std::optional(value * factor) : std::nullopt;
  });
  return points;
}

void AddMean(CurvePanel& panel, GaitSide side, const visit::CurveStatistics& pooled,
             double factor) {
  const auto mean = pooled.Mean(panel.Part);
  if (!mean) return;
  const auto deviation = pooled.Deviation(panel.Part);
  panel.Means.push_back({side, pooled.Count(), PointsOf(*mean, factor),
                         deviation ? PointsOf(*deviation, factor) : MeanPoints{}});
}

std::optional<NormalCurveBand> NormalOf(const visit::Normals* normals, const PanelLayout& layout,
                                        const ShownUnit& unit) {
  const auto* curve = normals == nullptr ? nullptr : normals->Curve(layout.Label, layout.Part);
  if (curve == nullptr) return std::nullopt;
  const double factor = FactorOfNormals(layout.Kind, curve->Unit, unit);
  return NormalCurveBand{PointsOf(curve->Mean, factor), PointsOf(curve->Deviation, factor)};
}

Range OrdinateOf(const PanelLayout& layout, const ShownUnit& unit,
                 const std::vector<Curve>& curves) {
  Extent extent;
  for (const Curve& curve : curves) {
    for (const auto& value : curve.Values) {
      if (value) extent.Add(double{*value});
    }
  }
  const Range fixed{layout.Low, layout.High, layout.Tick, false};
  if (unit.FitsLayout || extent.IsEmpty()) return WidenedFor(fixed, extent);
  extent.Add(0);
  Range range = RoundRange(extent);
  range.IsWidened = true;
  return range;
}

CurvePanel PanelOf(const ShownTrials& shown, const PanelLayout& layout) {
  const ShownUnit unit = shown.UnitOf(layout.Kind, layout.Label);
  CurvePanel panel;
  panel.Row = layout.Row;
  panel.Column = layout.Column;
  panel.Title = layout.Title;
  panel.Label = layout.Label;
  panel.Part = layout.Part;
  panel.Unit = unit.Text;
  panel.Down = layout.Down;
  panel.Up = layout.Up;
  for (const GaitSide side : kSides) {
    auto curves = CurvesOf(shown, layout, side);
    if (!curves.empty()) AddMarks(shown, side, panel.Marks);
    std::ranges::move(curves, std::back_inserter(panel.Curves));
    AddMean(panel, side, shown.Pooled(side, layout.Label), unit.Factor);
  }
  panel.Ordinate = OrdinateOf(layout, unit, panel.Curves);
  panel.Normal = NormalOf(shown.Normals(), layout, unit);
  panel.Notes = NotesOf(shown, layout);
  return panel;
}

void AddDeviations(const ShownTrials& shown, std::vector<Panel>& panels) {
  visit::Variability variability;
  for (const auto& trial : shown.CurvesForMeans()) variability.Add(trial);
  for (const visit::VariabilityRow& row : variability.Rows()) {
    for (Panel& any : panels) {
      auto& panel = std::get<CurvePanel>(any);
      const std::string label = WithLetter(row.Side, panel.Label);
      if (panel.Part != row.Part ||
          modAllPurpose::SearchKey(label) != modAllPurpose::SearchKey(row.Label))
        continue;
      const bool isThere = row.Deviation && std::isfinite(*row.Deviation);
      panel.Deviations.push_back({row.Side, isThere ? row.Deviation : std::nullopt});
    }
  }
}

}  // namespace

Page CurvePage(const ShownTrials& shown, PageKind kind) {
  Page page;
  page.Kind = kind;
  page.Title = InfoOf(kind).Title;
  for (const PanelLayout& layout : PanelsOf(kind)) {
    page.Rows = std::max(page.Rows, layout.Row);
    page.Columns = std::max(page.Columns, layout.Column);
    page.Panels.emplace_back(PanelOf(shown, layout));
  }
  if (kind == PageKind::Variability) AddDeviations(shown, page.Panels);
  return page;
}

}  // namespace pages
