// SPDX-License-Identifier: GPL-3.0-or-later

#include "c3d/OpenC3dFile.h"

#include <array>
#include <cmath>
#include <optional>
#include <span>

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
  return OpenResult::Success;
}

OpenResult DeriveFrames(FileState& state) {
  const C3dHeader& header = state.Header;
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

using OpenStep = OpenResult (*)(FileState&);

// The steps of an open in the order in which a fault is reported: those that make out the file, and
// those that take what it says.
constexpr std::array<OpenStep, 3> kFirstSteps = {OpenForReading, ReadHeader, ReadProcessorType};
constexpr std::array<OpenStep, 7> kFurtherSteps = {
    DeriveFromHeader, DeriveFrames, TakeCameraRate, CheckSubjects,
    CheckScaleFactor, ReadLabels,   DeriveTimes};

OpenResult RunSteps(FileState& state, std::span<const OpenStep> steps) {
  for (const auto step : steps) {
    const OpenResult result = step(state);
    if (result != OpenResult::Success) return result;
  }
  return OpenResult::Success;
}

// Names the files of an open and closes those of the one before.
OpenResult TakeFileSpecs(FileState& state, const std::string& fileSpec) {
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
  return OpenResult::Success;
}

// Runs the steps of an open behind a fault too and keeps the first one.
class Examination {
 public:
  explicit Examination(FileState& state) : state_(state) {}

  // False where the step found a fault or ended in an error.
  template <typename Step>
  bool Try(const Step& step) {
    OpenOutcome met;
    try {
      met.Result = step(state_);
    } catch (const modAllPurpose::RuntimeError& error) {
      met.Error = error;
    }
    if (outcome_.IsSuccess()) outcome_ = met;
    return met.IsSuccess();
  }

  const OpenOutcome& Outcome() const { return outcome_; }

 private:
  FileState& state_;
  OpenOutcome outcome_;
};

// The group that every C3D file has.
bool HasPointGroup(const FileState& state) {
  bool found = false;
  IgnoringErrors([&] { found = FindGroup(state, "POINT").Id > 0; });
  return found;
}

bool IsPlausibleRate(float rate) {
  constexpr float kHighestRate = 100000;
  return rate >= 1.0F && rate < kHighestRate;
}

// Whether the file can be read on though its key or its processor is wrong: its parameters are
// there, and where the processor is not known, the header's rate tells it.
bool MakeOut(FileState& state) {
  constexpr std::uint8_t kProcessorMips = 86;
  const std::uint8_t stored = state.ProcessorType;
  if (stored == 0 && ReadParamBlockHeader(state).ProcessorType == kProcessorMips) return false;
  state.SeekPtrForFirstC3dParam = state.C3dFileNumber.Position();
  for (const std::uint8_t processor : {kProcessorIntel, kProcessorDec}) {
    if (stored != 0 && stored != processor) continue;
    float rate = state.Header.PointFrameRate;
    ConvertDecFloatInPlace(rate, processor);
    state.ProcessorType = processor;
    if ((stored != 0 || IsPlausibleRate(rate)) && HasPointGroup(state)) return true;
  }
  state.ProcessorType = 0;
  return false;
}

// Takes how the frames are stored from the sign of either scale factor.
void GuessStorage(FileState& state) {
  float scale = state.Header.ScaleFactor;
  if (scale == 0.0F || std::isnan(scale)) {
    IgnoringErrors([&] {
      const GroupAndParam param = FindGroupAndParam(state, "POINT", "SCALE");
      scale = param.Param.SingleValues.First().value_or(scale);
    });
  }
  state.DataStoredAsIntegerOrSingle = scale < 0 ? kStoredAsSingle : kStoredAsInteger;
  state.Header.ScaleFactor = std::fabs(scale);
}

// The steps behind those that made out the file. What cannot be known stays 0.
void TakeWhatIsThere(FileState& state, Examination& examination, const EventSteps& findEvents) {
  const C3dHeader& header = state.Header;
  examination.Try(DeriveFromHeader);
  if (!examination.Try(DeriveFrames)) state.PointFrameCount = 0;
  const float ownRate = header.PointFrameRate;
  if (!examination.Try(TakeCameraRate)) state.Header.PointFrameRate = ownRate;
  examination.Try(CheckSubjects);
  if (!examination.Try(CheckScaleFactor)) GuessStorage(state);
  examination.Try(ReadLabels);
  const bool hasTimes = header.PointFrameRate >= 1.0F && state.PointFrameCount > 0;
  if (!hasTimes || !examination.Try(DeriveTimes)) return;
  examination.Try([&findEvents](FileState& trial) {
    findEvents(trial);
    return OpenResult::Success;
  });
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
  if (TakeFileSpecs(state, fileSpec) != OpenResult::Success) return OpenResult::SideFilesMissing;
  try {
    const BinaryFile::Look look(state.C3dFileNumber);
    OpenResult result = RunSteps(state, kFirstSteps);
    if (result == OpenResult::Success) result = RunSteps(state, kFurtherSteps);
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

OpenOutcome ExamineC3dFile(FileState& state, const std::string& fileSpec,
                           const EventSteps& findEvents) {
  if (TakeFileSpecs(state, fileSpec) != OpenResult::Success) {
    return {OpenResult::SideFilesMissing, {}};
  }
  const BinaryFile::Look look(state.C3dFileNumber);
  Examination examination(state);
  bool madeOut = examination.Try(OpenForReading);
  if (!madeOut) return examination.Outcome();
  for (const OpenStep step : {ReadHeader, ReadProcessorType}) {
    madeOut &= examination.Try(step);
    if (examination.Outcome().Error) return examination.Outcome();
  }
  if (!madeOut) IgnoringErrors([&] { madeOut = MakeOut(state); });
  if (madeOut) TakeWhatIsThere(state, examination, findEvents);
  return examination.Outcome();
}

}  // namespace modVantrel
