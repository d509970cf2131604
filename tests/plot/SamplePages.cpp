// SPDX-License-Identifier: GPL-3.0-or-later

#include "SamplePages.h"

#include <cmath>

#include <fmt/format.h>

namespace plot_tests {

using modVantrel::Component;
using modVantrel::GaitEventType;
using modVantrel::GaitSide;
using pages::Bar;
using pages::CurvePanel;

namespace {

constexpr std::array kSides = {GaitSide::Left, GaitSide::Right};

double ValueAt(std::size_t instant, int shift) {
  return 20 + 25 * std::sin(0.12 * static_cast<double>(instant) + 0.1 * shift) + shift;
}

pages::Curve CurveOf(GaitSide side, int stride, const Sample& sample) {
  pages::Curve curve;
  curve.Id = {static_cast<std::size_t>((stride - 1) * sample.Files / sample.Strides), side, stride};
  const int shift = stride + (side == GaitSide::Right ? 4 : 0);
  for (std::size_t i = 0; i < curve.Values.size(); ++i) {
    curve.Values[i] = static_cast<float>(ValueAt(i, shift));
  }
  return curve;
}

pages::MeanCurve MeanOf(GaitSide side, const Sample& sample) {
  pages::MeanCurve mean;
  mean.Side = side;
  mean.Count = sample.Strides;
  for (std::size_t i = 0; i < mean.Mean.size(); ++i) {
    mean.Mean[i] = ValueAt(i, side == GaitSide::Right ? 5 : 1);
    if (sample.Strides > 1) mean.Deviation[i] = 4.0;
  }
  return mean;
}

pages::NormalCurveBand NormalBand() {
  pages::NormalCurveBand band;
  for (std::size_t i = 0; i < band.Mean.size(); ++i) {
    band.Mean[i] = ValueAt(i, -6);
    band.Deviation[i] = 7.0;
  }
  return band;
}

void Fill(CurvePanel& panel, const Sample& sample) {
  for (const GaitSide side : kSides) {
    for (int k = 1; k <= sample.Strides; ++k) panel.Curves.push_back(CurveOf(side, k, sample));
    panel.Means.push_back(MeanOf(side, sample));
    panel.Marks.push_back({side, pages::MarkKind::FootOff, 61.5});
    panel.Marks.push_back({side, pages::MarkKind::OppositeFootOff, 11.5});
    panel.Marks.push_back({side, pages::MarkKind::OppositeFootStrike, 50.2});
    panel.Deviations.push_back({side, 1.25});
  }
  if (sample.HasNormals) panel.Normal = NormalBand();
}

CurvePanel PanelAt(int row, int column, const Sample& sample) {
  CurvePanel panel;
  panel.Row = row;
  panel.Column = column;
  panel.Title = (row == 3 && column == 1 ? "Knee flexion" : "Ankle dorsiflexion") + sample.Longer;
  panel.Label = "AnkleAngles";
  panel.Unit = "deg" + sample.Longer;
  panel.Ordinate = {-30, 60, 15, false};
  panel.Down = "Plant" + sample.Longer;
  panel.Up = "Dors" + sample.Longer;
  return panel;
}

pages::BarGroup GroupOf(const std::string& name, const Sample& sample) {
  pages::BarGroup group;
  group.Name = name;
  group.Title = name + sample.Longer;
  for (const GaitSide side : kSides) {
    group.Bars.push_back({side, sample.Strides, side == GaitSide::Left ? 1.23 : 1.31, {}});
    if (sample.Strides > 1) group.Bars.back().Deviation = 0.12;
  }
  group.Asymmetry = 6.3;
  if (sample.HasNormals) {
    group.NormalMean = 1.4;
    group.NormalDeviation = 0.1;
  }
  return group;
}

}  // namespace

pages::Page SampleCurves(const Sample& sample) {
  pages::Page page{pages::PageKind::Kinematics, "Kinematics", 4, 3, {}, {}};
  for (int row = 1; row <= 4; ++row) {
    for (int column = 1; column <= 3; ++column) {
      CurvePanel panel = PanelAt(row, column, sample);
      if (row == 4 && column == 3) {
        panel.Notes = {"AnkleAngles: the trial has no such label" + sample.Longer};
      } else {
        Fill(panel, sample);
      }
      page.Panels.emplace_back(std::move(panel));
    }
  }
  std::get<CurvePanel>(page.Panels[0]).Ordinate = {0, 30, 10, true};
  auto& second = std::get<CurvePanel>(page.Panels[1]);
  for (std::size_t i = 20; i < 25; ++i) second.Curves[0].Values[i].reset();
  second.Notes = {"RAnkleAngles has values that are no numbers" + sample.Longer};
  return page;
}

pages::Page SampleMeasures(const Sample& sample) {
  pages::Page page{pages::PageKind::Measures, "Measures", 4, 3, {}, {}};
  for (int row = 1; row <= 4; ++row) {
    for (int column = 1; column <= 3; ++column) {
      pages::BarPanel panel{row, column, "Opposite foot contact" + sample.Longer, "m/s", {},
                            {},  {}};
      panel.Ordinate = {0, 2, 0.5, false};
      panel.Groups = {GroupOf("opposite_foot_contact", sample)};
      page.Panels.emplace_back(std::move(panel));
    }
  }
  return page;
}

pages::Page SampleScores(const Sample& sample) {
  pages::Page page{pages::PageKind::Scores, "Scores", 1, 1, {}, {}};
  pages::BarPanel panel{1, 1, "Gait Variable Scores" + sample.Longer, "deg", {}, {}, {}};
  panel.Ordinate = {0, 2, 0.5, false};
  for (int k = 0; k < 10; ++k) panel.Groups.push_back(GroupOf("Foot progression", sample));
  page.Panels.emplace_back(std::move(panel));
  return page;
}

pages::Page SampleTrace(const Sample& sample) {
  pages::Page page{pages::PageKind::Label, "LKNE over time" + sample.Longer, 3, 1, {}, {}};
  pages::Trace trace;
  trace.Label = "LKNE";
  trace.LeftStrides = sample.Strides;
  trace.RightStrides = sample.Strides;
  for (int i = 0; i < 400; ++i) trace.Times.push_back(static_cast<float>(i) / 100);
  for (int k = 0; k < 8 * sample.Strides; ++k) {
    trace.Events.push_back({kSides[static_cast<std::size_t>(k) % 2],
                            k % 4 < 2 ? GaitEventType::FootStrike : GaitEventType::FootOff,
                            4.0 * k / (8 * sample.Strides)});
  }
  int row = 0;
  for (const Component part : modVantrel::kComponents) {
    pages::TracePanel panel{++row, 1, "x" + sample.Longer, part, "mm", {-500, 1500, 500, false},
                            {},    {}};
    for (int i = 0; i < 400; ++i) {
      panel.Values.emplace_back(static_cast<float>(500 + 3 * i * std::sin(0.02 * i)));
    }
    for (std::size_t i = 100; i < 140; ++i) panel.Values[i].reset();
    page.Panels.emplace_back(std::move(panel));
  }
  page.OverTime = std::move(trace);
  return page;
}

pages::PageSet SamplePages(const Sample& sample) {
  pages::PageSet set;
  set.Program = "vantrel-curves 0.3.0";
  set.Title = "Clinical gait analysis" + sample.Longer;
  set.Subject = "Subject 0815" + sample.Longer;
  set.LeftStrides = sample.Strides;
  set.RightStrides = sample.Strides;
  for (int k = 1; k <= sample.Files; ++k) {
    set.Files.push_back({fmt::format("/visits/walk {}{}.c3d", k, sample.Longer),
                         fmt::format("2024-05-{:02}", k), 100});
  }
  set.Pages = {SampleCurves(sample), SampleMeasures(sample), SampleScores(sample),
               SampleTrace(sample)};
  set.Pages.push_back(set.Pages[0]);
  set.Pages.back().Kind = pages::PageKind::Variability;
  return set;
}

}  // namespace plot_tests
