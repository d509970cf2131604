// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <optional>

#include <QByteArray>
#include <QSettings>

#include "plot/PageDrawing.h"

namespace app {

// What the curves window remembers from one run to the next, in the file of the program's settings.
// A value that is missing or makes no sense counts as never set.
class CurvesMemory {
 public:
  CurvesMemory();

  // Size and place, in the toolkit's form; empty where there is none.
  QByteArray Geometry() const;
  QByteArray Split() const;
  void SetGeometry(const QByteArray& geometry, const QByteArray& split);

  // Nothing as long as the user has not chosen.
  std::optional<plot::Shown> Curves() const;
  void SetCurves(plot::Shown curves);

  bool IsMonochrome() const;
  void SetMonochrome(bool isMonochrome);
  bool IsLandscape() const;
  void SetLandscape(bool isLandscape);

 private:
  QSettings settings_;
};

}  // namespace app
