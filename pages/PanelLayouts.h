// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <span>
#include <string_view>

#include "c3d/Component.h"
#include "c3d/PointKinds.h"
#include "pages/PageKinds.h"

namespace pages {

// What a panel of curves shows, and the ordinate that it has on every page of its kind.
struct PanelLayout {
  int Row;  // from 1, like Column
  int Column;
  std::string_view Title;
  std::string_view Label;  // without the letter of a side
  modVantrel::Component Part;
  modVantrel::PointKind Kind;  // which names the unit that its values have
  double Low;                  // in the unit shown, like the next two
  double High;
  double Tick;
  std::string_view Down;  // the direction of low values, and of high ones
  std::string_view Up;
};

// The panels of a page of curves, row by row; none for any other page.
std::span<const PanelLayout> PanelsOf(PageKind kind);

// The title of the panel of kinematics for that label, without its letter, and component; empty
// where there is none.
std::string_view TitleOfAngle(std::string_view label, modVantrel::Component part);

}  // namespace pages
