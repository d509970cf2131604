// SPDX-License-Identifier: GPL-3.0-or-later

#include "tests/visit/VisitWalks.h"

#include <fmt/format.h>

#include "gait/EventExtraction.h"

namespace tests {

sample::TrialBuilder TrialOfOneStride(const std::string& side) {
  sample::TrialBuilder builder;
  builder.StoredAs(sample::Storage::Single).Frames(1, 81).Rate(64);
  AddStrideEvents(builder, side, kWholeFrameStride);
  return builder;
}

OpenedWalk Opened(const sample::TrialBuilder& builder) {
  return OpenedWalk(builder.Build(), modVantrel::FindGaitEvents);
}

void AddStandingCurve(visit::CurveStatistics& curves, const std::array<double, 3>& place) {
  std::array<visit::CurveValues, 3> values{};
  for (std::size_t i = 0; i < values.size(); ++i) values[i].fill(place[i]);
  curves.Add(values);
}

visit::LabelCurves StandingCurves(const std::string& label, const std::array<double, 3>& left,
                                  const std::array<double, 3>& right) {
  visit::LabelCurves curves{label, "deg", {}, {}};
  AddStandingCurve(curves.Left, left);
  AddStandingCurve(curves.Right, right);
  return curves;
}

std::string CsvOfCurve(std::string_view label, std::string_view component, double mean,
                       double deviation) {
  std::string text;
  for (int percent = 0; percent <= 100; percent += 2) {
    text += fmt::format("{},{},{},{},{},4,deg\n", label, component, percent, mean, deviation);
  }
  return text;
}

}  // namespace tests
