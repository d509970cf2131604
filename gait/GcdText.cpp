// SPDX-License-Identifier: GPL-3.0-or-later

#include <iterator>

#include <fmt/format.h>

#include "c3d/FrameData.h"
#include "gait/GcdCalcs.h"
#include "gait/GcdCurveTable.h"
#include "support/Arithmetic.h"
#include "support/NumberForms.h"

namespace modVantrel {

using modAllPurposeNumbers::AppendNumber;
using modAllPurposeNumbers::FormatNumber;
using modAllPurposeNumbers::NumberPattern;

namespace {

constexpr NumberPattern kAge("#0.00");
constexpr NumberPattern kValue("0.0###########");
constexpr std::string_view kLineEnd = "\r\n";

constexpr std::int32_t kAxialComponent = 3;

// The coordinate of that number, 1 to 3; 0 for any other.
float ComponentOf(const NormalizedPoint& point, std::int32_t component) {
  switch (component) {
    case 1:
      return point.X;
    case 2:
      return point.Y;
    case 3:
      return point.Z;
    default:
      return 0;
  }
}

void AppendLine(std::string& text, std::string_view line) {
  text += line;
  text += kLineEnd;
}

void AppendValue(std::string& text, float value) {
  AppendNumber(text, kValue, double{value});
  text += kLineEnd;
}

std::string HeaderText(const SubjectRecord& subject) {
  std::string text;
  AppendLine(text, "#!DST-0.1 GCD Quarrin PhD 1.00");
  AppendLine(text, "$Gender");
  AppendLine(text, GenderName(subject.Gender));
  AppendLine(text, "$Age");
  AppendLine(text, FormatNumber(kAge, AgeInYears(subject.DateOfBirth, subject.VisitDate)));
  return text;
}

std::string MeasuresText(const SingleValueMeasures& measures, std::string_view valuePrefix) {
  std::string text;
  const auto add = [&](std::string_view name, float value) {
    AppendLine(text, fmt::format("{}{}", valuePrefix, name));
    AppendValue(text, value);
  };
  add("StrideTime", measures.StrideTime);
  add("Cadence", measures.Cadence);
  add("StePTime", measures.StepTimePct);
  add("OppositeFootOff", measures.OppositeFootOffPct);
  add("OppositeFootContact", measures.OppositeFootStrikePct);
  add("FootOff", measures.SameFootOffPct);
  add("SingleSupport", measures.SingleSupportPct);
  add("DoubleSupport", measures.DoubleSupportPct);
  add("StrideLength", measures.StrideLength);
  add("StePLength", measures.StepLength);
  add("Speed", measures.Speed);
  return text;
}

void AppendCurve(std::string& text, std::string_view name, const NormalizedCurve& curve,
                 std::int32_t component, float scale) {
  AppendLine(text, name);
  for (const NormalizedPoint& point : curve) {
    const double value = ComponentOf(point, component);
    AppendValue(text, modAllPurposeNumbers::ToSingle(value * scale));
  }
}

}  // namespace

std::string clsGcdCalcs::GcdText(std::int32_t strideIndex, std::string_view valuePrefix,
                                 std::string_view labelLetter, const SubjectRecord& subject,
                                 const GcdParts& parts) {
  std::string text = parts.AppendMode ? std::string() : HeaderText(subject);
  const SingleValueMeasures measures = CalcSingleValueMeasures(strideIndex);
  text += MeasuresText(measures, valuePrefix);
  if (!parts.SuppressVideoRate) {
    AppendLine(text, "!VideoRate");
    AppendValue(text, measures.VideoRate);
  }
  for (const GcdCurveSpec& row : GcdCurveTable()) {
    AppendLabelCurves(text, strideIndex, valuePrefix, labelLetter, measures.ProgressionAxis, row);
  }
  return text;
}

void clsGcdCalcs::AppendLabelCurves(std::string& text, std::int32_t strideIndex,
                                    std::string_view valuePrefix, std::string_view labelLetter,
                                    std::int32_t progressionAxis, const GcdCurveSpec& row) {
  std::string label = fmt::format("{}{}", labelLetter, row.Label);
  if (!PointLabelExists(state_, label)) label = fmt::format("{}{}", labelLetter, row.Alternative);
  if (!PointLabelExists(state_, label)) return;

  const NormalizedCurve curve = NormalizeLabelForStride(label, strideIndex);
  const auto add = [&](std::string_view name, std::int32_t component) {
    if (name.empty()) return;
    AppendCurve(text, fmt::format("{}{}", valuePrefix, name), curve, component, row.Scale);
  };
  add(row.Sagittal, progressionAxis);
  add(row.Coronal, progressionAxis % 2 + 1);
  add(row.Axial, kAxialComponent);
}

}  // namespace modVantrel
