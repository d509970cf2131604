// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <array>
#include <bitset>
#include <cstddef>
#include <cstdint>
#include <map>
#include <optional>
#include <string>
#include <vector>

#include "c3d/FileState.h"
#include "c3d/GaitEvents.h"
#include "c3d/PointKinds.h"
#include "gait/StrideCurve.h"
#include "pages/PageKinds.h"
#include "visit/CurveStatistics.h"
#include "visit/GaitMeasures.h"

namespace pages {

// A valid stride, and what its pages show besides curves.
struct TrialStride {
  modVantrel::GaitSide Side = modVantrel::GaitSide::None;
  std::int32_t Number = 0;  // among those of its side, from 1
  bool IsComplete = false;  // only complete strides enter means
  double FootOff = 0;       // percent of the stride, like the next two
  double OppositeFootOff = 0;
  double OppositeFootStrike = 0;
  std::optional<visit::GaitMeasures> Measures;  // of a complete stride
};

// A label over one stride.
struct LabelStride {
  std::size_t Stride = 0;  // its place in TrialValues::Strides, from 0
  modVantrel::NormalizedCurve Curve;
  std::bitset<visit::kInstants> Missing;  // instants on or between frames that are not seen
  bool EntersMeans = false;               // of a complete stride, and seen throughout
};

struct TrialLabel {
  std::string Label;  // as the file spells it
  std::string Unit;   // empty where the file names none
  modVantrel::PointKind Kind = modVantrel::PointKind::Marker;
  bool HasNotANumber = false;        // somewhere in the trial, which leaves no curve of it
  std::vector<LabelStride> Strides;  // of the label's side, or of both for a label of neither
};

// A label over the whole trial.
struct LabelOverTime {
  std::string Label;
  std::string Unit;
  std::vector<float> Times;                                 // seconds, one for each frame
  std::array<std::vector<std::optional<float>>, 3> Values;  // X, Y and Z; missing where not seen
};

// What the pages of one trial are made of. It is all that is kept of a file, so that pages can be
// made again, with other choices, without reading it again.
struct TrialValues {
  std::string File;
  std::string Date;  // of the file, ISO; empty where that is unknown
  double Rate = 0;
  std::vector<TrialStride> Strides;
  std::vector<TrialLabel> Labels;  // those of the pages that were asked for, as far as it has them
  std::map<modVantrel::PointKind, std::string>
      Units;  // of angles, moments and powers; may be empty
  std::vector<LabelOverTime> OverTime;
  std::vector<modVantrel::EventRecord> Events;
};

// What to read of a trial: the labels of these pages, and over time the ones that are named.
struct TrialReading {
  std::vector<PageKind> Kinds;
  std::vector<std::string> LabelsOverTime;
};

// Reads an open trial. Labels behind the 255th are found where AddFurtherLabels has filled them in,
// as pages want it. Errors as clsGcdCalcs.
TrialValues ReadTrialValues(const modVantrel::FileState& state, const TrialReading& reading);

}  // namespace pages
