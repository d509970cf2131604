// SPDX-License-Identifier: GPL-3.0-or-later

#include "app/CurvesMemory.h"

#include "app/Remembered.h"

namespace app {

namespace {

const auto kGeometry = QStringLiteral("curvesWindow/geometry");
const auto kSplit = QStringLiteral("curvesWindow/split");
const auto kCurves = QStringLiteral("curvesWindow/curves");
const auto kMonochrome = QStringLiteral("curvesWindow/monochrome");
const auto kLandscape = QStringLiteral("curvesWindow/landscape");
const auto kStrides = QStringLiteral("strides");
const auto kMeans = QStringLiteral("means");

}  // namespace

CurvesMemory::CurvesMemory() : settings_(SettingsFile(), QSettings::IniFormat) {}

QByteArray CurvesMemory::Geometry() const { return settings_.value(kGeometry).toByteArray(); }

QByteArray CurvesMemory::Split() const { return settings_.value(kSplit).toByteArray(); }

void CurvesMemory::SetGeometry(const QByteArray& geometry, const QByteArray& split) {
  settings_.setValue(kGeometry, geometry);
  settings_.setValue(kSplit, split);
}

std::optional<plot::Shown> CurvesMemory::Curves() const {
  const QString curves = settings_.value(kCurves).toString();
  if (curves == kStrides) return plot::Shown::Strides;
  if (curves == kMeans) return plot::Shown::Means;
  return std::nullopt;
}

void CurvesMemory::SetCurves(plot::Shown curves) {
  settings_.setValue(kCurves, curves == plot::Shown::Strides ? kStrides : kMeans);
}

bool CurvesMemory::IsMonochrome() const { return settings_.value(kMonochrome).toBool(); }

void CurvesMemory::SetMonochrome(bool isMonochrome) {
  settings_.setValue(kMonochrome, isMonochrome);
}

bool CurvesMemory::IsLandscape() const { return settings_.value(kLandscape).toBool(); }

void CurvesMemory::SetLandscape(bool isLandscape) { settings_.setValue(kLandscape, isLandscape); }

}  // namespace app
