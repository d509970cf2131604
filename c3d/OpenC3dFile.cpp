// SPDX-License-Identifier: GPL-3.0-or-later

#include "c3d/OpenC3dFile.h"

#include <array>
#include <cmath>
#include <optional>

#include "c3d/LabelTables.h"
#include "c3d/MacSideFiles.h"
#include "c3d/MotionSystem.h"
#include "c3d/ParameterSection.h"
#include "c3d/StoredNumbers.h"
#include "support/Arithmetic.h"
#include "support/FileSystem.h"
#include "support/RuntimeError.h"

namespace modVantrel {

using modAllPurpose::FileExists;
using modAllPurpose::IgnoringErrors;
using modAllPurposeNumbers::AddIntegers;
using modAllPurposeNumbers::Divide;
using modAllPurposeNumbers::SubtractIntegers;
using modAllPurposeNumbers::ToSingle;

namespace {

OpenResult OpenForReading(FileState& state) {
  const bool opened = IgnoringErrors([&state] {
    state.C3dFileNumber.Open(state.OpenC3dFileSpec);
    if constexpr (giTypeOfMotionSystem == MotionSystem::Mac) {
      state.MacData.SideFileNumber.Open(state.DataFileSpec);
    }
  });
  if (!opened) return OpenResult::FileNotOpened;
  if constexpr (giTypeOfMotionSystem == MotionSystem::Mac) ReadMacDataFile(state.MacData);
  return OpenResult::Success;
}

OpenResult ReadHeader(FileState& state) {
  state.C3dFileNumber.Seek(1);
  state.Header = ParseHeader(state.C3dFileNumber.Read(kBlockSize).first<kBlockSize>());
  return state.Header.FileID == kFileKey ? OpenResult::Success : OpenResult::FileKeyNotFound;
}

OpenResult ReadProcessorType(FileState& state) {
  const std::uint8_t processor = ReadParamBlockHeader(state).ProcessorType;
  if (processor != kProcessorIntel && processor != kProcessorDec) {
    return OpenResult::ProcessorNotSupported;
  }
  state.ProcessorType = processor;
  state.SeekPtrForFirstC3dParam = state.C3dFileNumber.Position();
  return OpenResult::Success;
}

OpenResult DeriveFromHeader(FileState& state) {
  C3dHeader& header = state.Header;
  ConvertDecFloatInPlace(header.ScaleFactor, state.ProcessorType);
  ConvertDecFloatInPlace(header.PointFrameRate, state.ProcessorType);
  ConvertDecFloatArray(header.EventTimes.AsSpan(), state.ProcessorType);

  state.AnalogChannelsCount = 0;
  if (header.AnalogSamplesPerChannel > 0) {
    state.AnalogChannelsCount =
        ToSingle(Divide(header.AnalogValuesPerFrame, header.AnalogSamplesPerChannel));
  }
  state.AnalogFrameRate = ToSingle(double{header.PointFrameRate} * header.AnalogSamplesPerChannel);
  state.SeekPtrForFirstFrameData =
      (UnsignedWord(header.FirstMarkerAndAnalogBlockPointer) - 1) * kBlockSize + 1;
  state.PointFrameCount =
      AddIntegers(SubtractIntegers(header.LastPointFrameNumber, header.FirstPointFrameNumber), 1);
  return state.PointFrameCount < 1 ? OpenResult::NoFrames : OpenResult::Success;
}

OpenResult TakeCameraRate(FileState& state) {
  const GroupAndParam camera = FindGroupAndParam(state, "TRIAL", "CAMERA_RATE");
  if (const auto rate = camera.Param.SingleValues.First()) state.Header.PointFrameRate = *rate;
  // A rate that is not a number is not set either.
  return state.Header.PointFrameRate >= 1.0F ? OpenResult::Success : OpenResult::FrameRateNotSet;
}

OpenResult CheckSubjects(FileState& state) {
  const GroupAndParam used = FindGroupAndParam(state, "SUBJECTS", "USED");
  return used.Param.IntegerValues.First().value_or(0) > 1 ? OpenResult::MoreThanOneSubject
                                                          : OpenResult::Success;
}

OpenResult CheckScaleFactor(FileState& state) {
  const GroupAndParam scale = FindGroupAndParam(state, "POINT", "SCALE");
  const std::optional<float> value = scale.Param.SingleValues.First();
  float& scaleFactor = state.Header.ScaleFactor;
  // Equality of the stored floats is the rule; a scale that is not a number equals nothing.
  if (!value || *value != scaleFactor || *value == 0.0F) return OpenResult::ScaleFactorCorrupt;

  state.DataStoredAsIntegerOrSingle = scaleFactor < 0 ? kStoredAsSingle : kStoredAsInteger;
  scaleFactor = std::fabs(scaleFactor);
  return OpenResult::Success;
}

OpenResult ReadLabels(FileState& state) {
  ReadLabelPrefix(state);
  if (state.Header.PointLabelCount < 1) return OpenResult::NoPointLabels;
  FillPointLabels(state);
  FillAnalogLabels(state);
  return OpenResult::Success;
}

OpenResult DeriveTimes(FileState& state) {
  const C3dHeader& header = state.Header;
  const double rate = header.PointFrameRate;
  state.ElapsedTimeOfWalk = ToSingle(1.0 / rate * (state.PointFrameCount - 1));
  state.TimeBetweenFrames = ToSingle(1.0 / rate);
  const double step = state.TimeBetweenFrames;
  state.WalkStartTime = ToSingle((header.FirstPointFrameNumber - 1) * step);
  state.WalkEndTime = ToSingle((header.LastPointFrameNumber - 1) * step);
  return OpenResult::Success;
}

// The steps of an open in the order in which a fault is reported.
OpenResult RunSteps(FileState& state) {
  constexpr std::array kSteps = {OpenForReading,   ReadHeader,     ReadProcessorType,
                                 DeriveFromHeader, TakeCameraRate, CheckSubjects,
                                 CheckScaleFactor, ReadLabels,     DeriveTimes};
  for (const auto step : kSteps) {
    const OpenResult result = step(state);
    if (result != OpenResult::Success) return result;
  }
  return OpenResult::Success;
}

}  // namespace

std::string_view OpenFailureMessage(OpenResult result) {
  switch (result) {
    case OpenResult::Success:
      return "";
    case OpenResult::FileNotOpened:
      return "File open error while attempting to open C3D file.";
    case OpenResult::FileKeyNotFound:
      return "Not a valid C3D file.  The file key value was not found.";
    case OpenResult::ProcessorNotSupported:
      return "Data not stored as eiher Intel (IEEE) or DEC format.  (MIPS format not supported.)  "
             "Can't read this C3D file.";
    case OpenResult::MoreThanOneSubject:
      return "More than one subject (patient) was found in the file.  These files can not be read.";
    case OpenResult::ScaleFactorCorrupt:
      return "The scale factor used for scaling data is corrupted.  Can't read this C3D file.";
    case OpenResult::NoPointLabels:
      return "No point labels were defined in this file (or label count variable is corrupt).  "
             "Can't read this C3D file.";
    case OpenResult::NoFrames:
      return "No frames were stored in this file (or frame count variable is corrupt).  Can't read "
             "this C3D file.";
    case OpenResult::FrameRateNotSet:
      return "The point frame rate is not set.  Can't read this C3D file.";
    case OpenResult::SideFilesMissing:
      return "The giTypeOfMotionSystem is set to MAC and the .EVT and/or .DATA file can't be "
             "found.  Can't read this C3D file.";
  }
  return "";
}

OpenResult OpenC3dFile(FileState& state, const std::string& fileSpec,
                       const EventSteps& findEvents) {
  SideFileSpecs sideFiles;
  if constexpr (giTypeOfMotionSystem == MotionSystem::Mac) {
    sideFiles = SideFilesOf(fileSpec);
    if (!FileExists(sideFiles.Evt) || !FileExists(sideFiles.Data)) {
      CloseC3dFile(state);
      return OpenResult::SideFilesMissing;
    }
  }
  CloseC3dFile(state);
  state.OpenC3dFileSpec = fileSpec;
  state.EvtFileSpec = sideFiles.Evt;
  state.DataFileSpec = sideFiles.Data;
  try {
    const BinaryFile::Look look(state.C3dFileNumber);
    const OpenResult result = RunSteps(state);
    if (result != OpenResult::Success) {
      CloseC3dFile(state);
      return result;
    }
    findEvents(state);
    return OpenResult::Success;
  } catch (...) {
    CloseC3dFile(state);
    throw;
  }
}

}  // namespace modVantrel
