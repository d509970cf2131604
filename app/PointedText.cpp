// SPDX-License-Identifier: GPL-3.0-or-later

#include "app/PointedText.h"

#include <cmath>
#include <variant>

#include <fmt/format.h>

#include "gait/EventNames.h"
#include "support/FileSystem.h"

namespace app {

namespace {

std::string NumberIn(double value, const std::string& unit) {
  std::string text = fmt::format("{:.2f}", value);
  if (text == "-0.00") text = "0.00";
  return unit.empty() ? text : text + " " + unit;
}

std::string WithDeviation(double value, const std::optional<double>& deviation,
                          const std::string& unit) {
  if (!deviation) return NumberIn(value, unit);
  return NumberIn(value, {}) + " \u00b1 " + NumberIn(*deviation, unit);
}

std::string FileName(const pages::PageSet& set, std::size_t file) {
  return file < set.Files.size() ? std::string(modAllPurpose::OwnName(set.Files[file].Name))
                                 : std::string();
}

std::string StridesText(std::int64_t count) {
  return count == 1 ? "1 stride" : fmt::format("{} strides", count);
}

struct Describe {
  const pages::PageSet& Set;
  const pages::Page& Page;
  const PointedAt& What;

  std::string operator()(const pages::CurvePanel& panel) const {
    const auto percent = visit::PercentOf(What.Instant);
    if (!What.Stride) return OfMean(panel, panel.Means.at(What.Index), percent);
    for (const pages::Curve& curve : panel.Curves) {
      if (curve.Id != *What.Stride || !curve.Values.at(What.Instant)) continue;
      return fmt::format("{}, {} %: {} {}", StrideText(Set, curve.Id), percent, panel.Title,
                         NumberIn(double{*curve.Values.at(What.Instant)}, panel.Unit));
    }
    return StrideText(Set, *What.Stride);
  }

  std::string OfMean(const pages::CurvePanel& panel, const pages::MeanCurve& mean,
                     std::int64_t percent) const {
    return fmt::format("{} mean of {}, {} %: {} {}", modVantrel::SideName(mean.Side),
                       StridesText(mean.Count), percent, panel.Title,
                       WithDeviation(mean.Mean.at(What.Instant).value_or(0),
                                     mean.Deviation.at(What.Instant), panel.Unit));
  }

  std::string operator()(const pages::BarPanel& panel) const {
    const pages::BarGroup& group = panel.Groups.at(What.Index);
    std::string text = group.Title.empty() ? panel.Title : group.Title;
    const char* between = ": ";
    for (const pages::Bar& bar : group.Bars) {
      const bool isBoth = bar.Side == modVantrel::GaitSide::None;
      const std::string side = isBoth ? "Both" : std::string(modVantrel::SideName(bar.Side));
      text += between + side + " " +
              (bar.Value ? WithDeviation(*bar.Value, bar.Deviation, panel.Unit) +
                               fmt::format(" ({})", bar.Count)
                         : "missing");
      between = "; ";
    }
    if (group.Asymmetry) text += fmt::format("; asymmetry {:.1f} %", *group.Asymmetry);
    return text;
  }

  std::string operator()(const pages::TracePanel& panel) const {
    if (!Page.OverTime || !panel.Values.at(What.Instant)) return panel.Title;
    return fmt::format("{} of {}, {:.3f} s: {}", panel.Title, FileName(Set, Page.OverTime->File),
                       double{Page.OverTime->Times.at(What.Instant)},
                       NumberIn(double{*panel.Values[What.Instant]}, panel.Unit));
  }
};

}  // namespace

std::string PointedText(const pages::PageSet& set, const pages::Page& page, const PointedAt& what) {
  return std::visit(Describe{set, page, what}, page.Panels.at(what.Panel));
}

std::string StrideText(const pages::PageSet& set, const pages::StrideId& stride) {
  return fmt::format("{} stride {} of {}", modVantrel::SideName(stride.Side), stride.Stride,
                     FileName(set, stride.File));
}

}  // namespace app
