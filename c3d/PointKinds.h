// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <map>
#include <string>
#include <string_view>

#include "c3d/FileState.h"

namespace modVantrel {

// What the values of a point label are. Everything that the file lists as nothing else is a marker.
enum class PointKind { Marker, Angle, Force, Moment, Power, Scalar };

// The kinds of the open file's point labels, as POINT:ANGLES, FORCES, MOMENTS, POWERS and SCALARS
// list them, and the unit of each kind. A parameter section that cannot be walked lists nothing.
class PointKinds {
 public:
  explicit PointKinds(const FileState& state);

  // Case and the blanks around `label` do not count.
  PointKind KindOf(std::string_view label) const;

  // "deg", "Nmm", "mm" ..., as the file spells it; empty where it names none.
  const std::string& UnitOf(std::string_view label) const { return UnitOf(KindOf(label)); }
  const std::string& UnitOf(PointKind kind) const;

 private:
  std::map<std::string, PointKind, std::less<>> kinds_;  // by label in upper case
  std::map<PointKind, std::string> units_;
};

}  // namespace modVantrel
