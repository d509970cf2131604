// SPDX-License-Identifier: GPL-3.0-or-later

#include "gait/GcdText.h"

#include <optional>
#include <string_view>
#include <vector>

#include <fmt/format.h>

#include "c3d/FrameData.h"
#include "gait/EventNames.h"
#include "gait/GcdCurveTable.h"
#include "support/Arithmetic.h"
#include "support/NumberForms.h"
#include "support/OneBasedTable.h"

namespace modVantrel {

using modAllPurposeNumbers::AppendNumber;
using modAllPurposeNumbers::FormatNumber;
using modAllPurposeNumbers::NumberPattern;

namespace {

constexpr NumberPattern kAge("#0.00");
constexpr NumberPattern kValue("0.0###########");
constexpr std::string_view kLineEnd = "\r\n";

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
  for (const MeasureSpec& measure : MeasureTable()) {
    if (measure.GcdName.empty()) continue;
    AppendLine(text, fmt::format("{}{}", valuePrefix, measure.GcdName));
    AppendValue(text, measure.ValueOf(measures));
  }
  return text;
}

// Which components of a label are written under its sagittal, coronal and axial names; a missing
// one is written as 0.
struct Planes {
  std::optional<Component> Sagittal;
  Component Coronal = Component::X;
  Component Axial = Component::Z;
};

Planes PlanesBy(GcdAxes axes, WalkAxis walk) {
  if (axes == GcdAxes::Anatomical) return {Component::X, Component::Y, Component::Z};
  switch (walk) {
    case WalkAxis::X:
      return {Component::X, Component::Y, Component::Z};
    case WalkAxis::Y:
      return {Component::Y, Component::X, Component::Z};
    case WalkAxis::None:
      break;
  }
  return {std::nullopt, Component::X, Component::Z};
}

using CurveValues = modAllPurpose::OneBasedTable<float>;

CurveValues ValuesOf(const std::vector<StrideCurve>& curves, std::optional<Component> component) {
  if (!component) return CurveValues(kNormalizedPoints);
  return curves.at(static_cast<std::size_t>(*component) - 1).Values;
}

void AppendCurve(std::string& text, std::string_view name, const CurveValues& values, float scale) {
  AppendLine(text, name);
  for (const float value : values) {
    AppendValue(text, modAllPurposeNumbers::ToSingle(double{value} * scale));
  }
}

// The label of a table's row that the file holds; empty where it has neither.
std::string LabelOfRow(const FileState& state, std::string_view labelLetter,
                       const GcdCurveSpec& row) {
  for (const std::string_view name : {row.Label, row.Alternative}) {
    std::string label = fmt::format("{}{}", labelLetter, name);
    if (PointLabelExists(state, label)) return label;
  }
  return {};
}

void AppendRow(std::string& text, const std::vector<StrideCurve>& curves, const Planes& planes,
               std::string_view valuePrefix, const GcdCurveSpec& row) {
  const auto add = [&](std::string_view name, std::optional<Component> component) {
    if (name.empty()) return;
    AppendCurve(text, fmt::format("{}{}", valuePrefix, name), ValuesOf(curves, component),
                row.Scale);
  };
  add(row.Sagittal, planes.Sagittal);
  add(row.Coronal, planes.Coronal);
  add(row.Axial, planes.Axial);
}

}  // namespace

std::string GcdText(clsGcdCalcs& calcs, std::int32_t strideIndex, const SubjectRecord& subject,
                    const GcdTextOptions& options) {
  const SingleValueMeasures measures = calcs.CalcSingleValueMeasures(strideIndex);
  const std::string_view side = SideName(measures.Side);
  const std::string valuePrefix = fmt::format("!{}", side);
  std::string text = options.AppendMode ? std::string() : HeaderText(subject);
  text += MeasuresText(measures, valuePrefix);
  if (!options.SuppressVideoRate) {
    AppendLine(text, "!VideoRate");
    AppendValue(text, measures.VideoRate);
  }
  const Planes planes = PlanesBy(options.Axes, measures.ProgressionAxis);
  for (const GcdCurveSpec& row : GcdCurveTable()) {
    const std::string label = LabelOfRow(calcs.State(), side.substr(0, 1), row);
    if (label.empty()) continue;
    AppendRow(text, calcs.CurvesOfLabel(label, strideIndex), planes, valuePrefix, row);
  }
  return text;
}

}  // namespace modVantrel
