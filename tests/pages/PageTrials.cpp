// SPDX-License-Identifier: GPL-3.0-or-later

#include "tests/pages/PageTrials.h"

#include <algorithm>
#include <array>

#include <gtest/gtest.h>

#include "c3d/LabelTables.h"
#include "tests/visit/VisitWalks.h"

namespace tests {

using modVantrel::GaitSide;
using pages::PageKind;

sample::TrialBuilder TrialOfFourStrides() {
  constexpr float kRate = 64;
  sample::TrialBuilder builder;
  builder.StoredAs(sample::Storage::Single).Frames(1, 161).Rate(kRate);
  for (const float strike : {10.0F, 60.0F, 110.0F}) {
    builder.AddEvent("Left", "Foot Strike", strike / kRate);
    builder.AddEvent("Right", "Foot Off", (strike + 5) / kRate);
    builder.AddEvent("Right", "Foot Strike", (strike + 25) / kRate);
    builder.AddEvent("Left", "Foot Off", (strike + 30) / kRate);
  }
  return builder;
}

sample::PointCurve Step(float before, std::int32_t frame, float after) {
  return [=](std::int32_t at) {
    const float value = at < frame ? before : after;
    return std::array{value, value, value};
  };
}

pages::TrialValues ValuesOf(const sample::TrialBuilder& builder,
                            const std::vector<std::string>& overTime) {
  OpenedWalk walk = Opened(builder);
  EXPECT_EQ(walk.Result(), modVantrel::OpenResult::Success);
  modVantrel::AddFurtherLabels(walk.State());
  pages::TrialReading reading;
  for (const pages::PageInfo& page : pages::kPages) reading.Kinds.push_back(page.Kind);
  reading.LabelsOverTime = overTime;
  return pages::ReadTrialValues(walk.State(), reading);
}

pages::TrialValues ValuesOf(const sample::TrialBuilder& builder, const std::string& file) {
  pages::TrialValues values = ValuesOf(builder);
  values.File = file;
  return values;
}

pages::Page PageOf(const std::vector<pages::TrialValues>& trials, PageKind kind,
                   pages::PageChoice choice) {
  choice.Kinds = {kind};
  pages::PageSet set = pages::MakePages(trials, choice);
  EXPECT_EQ(set.Pages.size(), 1U);
  return set.Pages.empty() ? pages::Page() : set.Pages.front();
}

pages::CurvePanel PanelOf(const pages::Page& page, std::string_view title) {
  for (const pages::Panel& panel : page.Panels) {
    const auto* curves = std::get_if<pages::CurvePanel>(&panel);
    if (curves != nullptr && curves->Title == title) return *curves;
  }
  ADD_FAILURE() << "there is no panel " << title;
  return {};
}

std::vector<pages::Curve> CurvesOf(const pages::CurvePanel& panel, GaitSide side) {
  std::vector<pages::Curve> curves;
  std::ranges::copy_if(panel.Curves, std::back_inserter(curves),
                       [side](const pages::Curve& curve) { return curve.Id.Side == side; });
  return curves;
}

std::vector<std::size_t> MissingOf(const pages::CurvePoints& points) {
  std::vector<std::size_t> missing;
  for (std::size_t i = 0; i < points.size(); ++i) {
    if (!points.at(i)) missing.push_back(i);
  }
  return missing;
}

}  // namespace tests
