// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <string>
#include <string_view>

#include "c3d/PointKinds.h"

namespace pages {

// How values of a unit are shown.
struct ShownUnit {
  std::string Text;         // "deg", "N·m/kg", "W" ...
  double Factor = 1;        // from the file's values to those shown
  bool FitsLayout = false;  // whether the fixed ranges are meant for it

  friend bool operator==(const ShownUnit&, const ShownUnit&) = default;
};

// Values of the unit that a file names for a kind, empty where it names none: angles then are in
// degrees, moments in N·mm/kg and powers in W/kg. Moments in N·mm are shown in N·m; the dots and
// blanks of a unit do not count, nor does case. Any other unit is shown as the file spells it.
ShownUnit UnitShownFor(modVantrel::PointKind kind, std::string_view unit);

// The factor for normals of the unit that their file names, on a panel in `shown`. A unit that is
// neither known for the kind nor that of the panel, as norms have it of trials that do not list
// their moments, counts as missing.
double FactorOfNormals(modVantrel::PointKind kind, std::string_view unit, const ShownUnit& shown);

}  // namespace pages
