// SPDX-License-Identifier: GPL-3.0-or-later

#include "pages/LabelPage.h"

#include <algorithm>
#include <utility>

#include <fmt/format.h>

#include "pages/Ranges.h"

namespace pages {

namespace {

TracePanel PanelOf(const LabelOverTime& label, std::size_t i) {
  TracePanel panel;
  panel.Row = static_cast<int>(i) + 1;
  panel.Part = modVantrel::kComponents.at(i);
  panel.Title = fmt::format("{} {}", label.Label, ComponentName(panel.Part));
  panel.Unit = label.Unit;
  panel.Values = label.Values.at(i);
  Extent extent;
  for (const auto& value : panel.Values) {
    if (value) extent.Add(double{*value});
  }
  panel.Ordinate = RoundRange(extent);
  if (extent.IsEmpty()) panel.Notes = {label.Label + " is not seen in this trial."};
  return panel;
}

}  // namespace

Page LabelPage(const ShownTrials& shown, std::size_t file, const LabelOverTime& label) {
  Page page;
  page.Kind = PageKind::Label;
  page.Title = label.Label;
  page.Rows = static_cast<int>(modVantrel::kComponents.size());
  for (std::size_t i = 0; i < modVantrel::kComponents.size(); ++i) {
    page.Panels.emplace_back(PanelOf(label, i));
  }
  Trace trace{file, label.Label, label.Times, {}};
  for (const modVantrel::EventRecord& event : shown.Trials()[file].Events) {
    trace.Events.push_back({event.Side, event.Type, double{event.Time}});
  }
  for (const TrialStride* stride : shown.StridesOf(file)) {
    if (stride->Side == modVantrel::GaitSide::Left) ++trace.LeftStrides;
    if (stride->Side == modVantrel::GaitSide::Right) ++trace.RightStrides;
  }
  page.OverTime = std::move(trace);
  return page;
}

}  // namespace pages
