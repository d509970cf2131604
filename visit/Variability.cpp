// SPDX-License-Identifier: GPL-3.0-or-later

#include "visit/Variability.h"

#include <numeric>

#include "support/Text.h"

namespace visit {

using modVantrel::Component;
using modVantrel::GaitSide;

namespace {

std::optional<double> MeanOverInstants(const std::optional<CurveValues>& values) {
  if (!values) return std::nullopt;
  return std::accumulate(values->begin(), values->end(), 0.0) / double{kInstants};
}

}  // namespace

void Variability::Add(const std::vector<LabelCurves>& trial) {
  for (const LabelCurves& label : trial) {
    const auto [place, isNew] =
        places_.emplace(modAllPurpose::SearchKey(label.Label), labels_.size());
    if (isNew) {
      labels_.push_back(label);
    } else {
      labels_[place->second].Left.Merge(label.Left);
      labels_[place->second].Right.Merge(label.Right);
    }
  }
}

std::vector<VariabilityRow> Variability::Rows() const {
  std::vector<VariabilityRow> rows;
  for (const GaitSide side : {GaitSide::Left, GaitSide::Right}) {
    for (const LabelCurves& label : labels_) {
      const CurveStatistics& curves = label.Of(side);
      if (curves.Count() == 0) continue;
      for (const Component part : modVantrel::kComponents) {
        rows.push_back({side, label.Label, part, curves.Count(),
                        MeanOverInstants(curves.Deviation(part)), label.Unit});
      }
    }
  }
  return rows;
}

}  // namespace visit
