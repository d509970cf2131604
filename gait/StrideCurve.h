// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstdint>
#include <string>

#include "c3d/Component.h"
#include "c3d/GaitEvents.h"
#include "support/OneBasedTable.h"

namespace modVantrel {

inline constexpr std::int32_t kNormalizedPoints = 51;  // 0 %, 2 %, ... 100 % of a stride

// One instant of a normalised label.
struct NormalizedPoint {
  float X = 0;
  float Y = 0;
  float Z = 0;
  float Time = 0;  // seconds of the trial, not of the stride
};

// A label over one stride, at kNormalizedPoints instants.
using NormalizedCurve = modAllPurpose::OneBasedTable<NormalizedPoint>;

// One component of a label over one stride.
struct StrideCurve {
  std::string Label;  // as the file spells it
  Component Part = Component::X;
  GaitSide Side = GaitSide::None;  // of the stride
  std::int32_t Stride = 0;         // its number among those of its side
  std::string Unit;                // of the values; empty where the file names none
  modAllPurpose::OneBasedTable<float> Values;
};

}  // namespace modVantrel
