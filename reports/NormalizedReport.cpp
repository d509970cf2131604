// SPDX-License-Identifier: GPL-3.0-or-later

#include "reports/NormalizedReport.h"

#include <string>

#include <fmt/format.h>

#include "c3d/FrameData.h"
#include "gait/EventNames.h"
#include "gait/GcdCalcs.h"
#include "support/NumberForms.h"

namespace reports {

using modAllPurpose::ReportOutput;
using modAllPurpose::ReportResult;
using modAllPurposeNumbers::FormatNumber;
using modAllPurposeNumbers::NumberPattern;
using modVantrel::FileState;
using modVantrel::NormalizedCurve;
using modVantrel::NormalizedPoint;
using modVantrel::SideName;
using modVantrel::StrideRecord;

namespace {

constexpr NumberPattern kPointNumber("  00");
constexpr NumberPattern kValue("00.0000");

void StrideHeading(std::string_view label, const StrideRecord& stride, ReportOutput& output) {
  output.Line(fmt::format("{}  {} Side #{}", label, SideName(stride.Side), stride.Number));
  output.Line("     Opposite foot off time:    " +
              FormatNumber(kValue, double{stride.OppositeFootOffTime}));
  output.Line("     Opposite foot strike time: " +
              FormatNumber(kValue, double{stride.OppositeFootStrikeTime}));
  output.Line("     Same foot off time:        " +
              FormatNumber(kValue, double{stride.SameFootOffTime}));
  output.Line(
      "     (Frame#, Time, X, Y, Z [Sagittal{X or Y}, Coronal{X or Y}, Axial{Z} for angles OR "
      "side-to-side{X or Y}, forward-backward{X or Y}, vertical for points{Z}])");
}

void CurveLines(const NormalizedCurve& curve, ReportOutput& output) {
  std::string line;
  for (std::int32_t k = 1; k <= curve.Count(); ++k) {
    const NormalizedPoint& point = curve[k];
    line.clear();
    AppendNumber(line, kPointNumber, k - 1);
    for (const float value : {point.Time, point.X, point.Y, point.Z}) {
      line += "  ";
      AppendNumber(line, kValue, double{value});
    }
    output.Line(line);
  }
}

}  // namespace

ReportResult ShowNormalized(const FileState& state, std::string_view label, ReportOutput& output) {
  if (!modVantrel::PointLabelExists(state, label))
    return ReportResult::Rejected("point label not found");
  if (state.GaitEvents.ValidStrideCount == 0) {
    return ReportResult::Rejected("valid PIG events not found");
  }
  output.BeginReport();
  modVantrel::clsGcdCalcs calcs(state);
  for (std::int32_t i = 1; i <= state.GaitEvents.ValidStrideCount; ++i) {
    const NormalizedCurve curve = calcs.NormalizeLabelForStride(label, i);
    StrideHeading(label, state.GaitEvents.ValidStrides[i], output);
    CurveLines(curve, output);
    output.Line("");
  }
  output.Line("");
  return ReportResult::Written();
}

}  // namespace reports
