// SPDX-License-Identifier: GPL-3.0-or-later

#include "pages/MeasurePage.h"

#include <utility>

#include "pages/BarRange.h"
#include "visit/Summary.h"

namespace pages {

using modVantrel::GaitSide;

namespace {

constexpr int kColumns = 4;

visit::Summary SummaryOf(const ShownTrials& shown) {
  visit::Summary summary;
  for (std::size_t file = 0; file < shown.Trials().size(); ++file) {
    std::vector<visit::GaitMeasures> strides;
    for (const TrialStride* stride : shown.StridesOf(file)) {
      if (stride->Measures) strides.push_back(*stride->Measures);
    }
    summary.Add(strides);
  }
  return summary;
}

Bar BarOf(GaitSide side, const visit::Statistics& statistics) {
  return {side, statistics.Count(), statistics.Mean(), statistics.Deviation()};
}

BarGroup GroupOf(const visit::GaitMeasureSpec& measure, const visit::SideStatistics& sides,
                 const visit::Normals* normals) {
  BarGroup group;
  group.Name = measure.Name;
  group.Title = visit::MeasureTitle(measure.Name);
  group.Bars = {BarOf(GaitSide::Left, sides.Left), BarOf(GaitSide::Right, sides.Right)};
  group.Asymmetry = Asymmetry(sides);
  const auto* normal = normals == nullptr ? nullptr : normals->Measure(measure.Name);
  if (normal != nullptr) {
    group.NormalMean = normal->Mean;
    group.NormalDeviation = normal->Deviation;
  }
  return group;
}

}  // namespace

Page MeasurePage(const ShownTrials& shown) {
  const visit::Summary summary = SummaryOf(shown);
  Page page;
  page.Kind = PageKind::Measures;
  page.Title = InfoOf(page.Kind).Title;
  page.Rows = static_cast<int>(visit::kGaitMeasureCount) / kColumns;
  page.Columns = kColumns;
  for (int i = 0; i < static_cast<int>(visit::kGaitMeasureCount); ++i) {
    const auto place = static_cast<std::size_t>(i);
    const visit::GaitMeasureSpec& measure = visit::GaitMeasureTable()[place];
    BarPanel panel;
    panel.Row = i / kColumns + 1;
    panel.Column = i % kColumns + 1;
    panel.Unit = measure.Unit;
    panel.Groups = {GroupOf(measure, summary.Measures().at(place), shown.Normals())};
    panel.Title = panel.Groups.front().Title;
    panel.Ordinate = RangeOfBars(panel.Groups);
    page.Panels.emplace_back(std::move(panel));
  }
  return page;
}

}  // namespace pages
