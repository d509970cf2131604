// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "c3d/C3dHeader.h"
#include "c3d/FileState.h"
#include "c3d/OpenC3dFile.h"
#include "c3d/ParamCatalog.h"
#include "c3d/PointKinds.h"
#include "gait/CheckFindings.h"

// What the checks of a trial share.
namespace modVantrel {

// A label of a point or channel, whether an open takes it or not.
struct FileLabel {
  std::int32_t Number = 0;  // of the point or channel
  std::string Name;         // as the program takes it: trimmed, without the prefix
  std::string Bytes;        // as the file has it
};

// The labels of the points or of the channels, those of LABELS2 ... included.
struct LabelsOfKind {
  std::string_view Param;  // "POINT:LABELS"
  std::string_view Thing;  // "point"
  std::int32_t Wanted = 0;
  std::vector<FileLabel> Given;  // of those wanted
};

// A trial as far as it can be read. Every member of it can be asked for whatever the file holds.
struct CheckedTrial {
  FileState State;  // with further labels
  OpenOutcome Outcome;
  C3dHeader Header;  // floats converted, otherwise as stored
  std::uint64_t FileSize = 0;
  std::int32_t FrameCount = 0;  // whole frames that the file holds
  std::optional<ParamCatalog> Params;
  std::optional<PointKinds> Kinds;
  LabelsOfKind Points;
  LabelsOfKind Channels;

  bool HasHeader() const { return FileSize >= kBlockSize; }
  bool HasParams() const { return Params.has_value(); }
  bool HasTimes() const { return State.TimeBetweenFrames > 0; }

  // A parameter without values where there is none. Errors as ReadParamRecord.
  ParamRecord Param(std::string_view group, std::string_view param) const;
  // The label of a point, with its number where an earlier one has the same; "point 7" where it has
  // none.
  std::string PointName(std::int32_t index) const;
};

// Fills `trial` with what `file` tells.
void ReadTrial(CheckedTrial& trial, const std::string& file);

// The first value of a parameter of numbers; integers are taken as unsigned.
std::optional<double> NumberOf(const ParamRecord& param);

}  // namespace modVantrel
