// SPDX-License-Identifier: GPL-3.0-or-later

#include <algorithm>

#include <fmt/format.h>

#include "c3d/FrameLayout.h"
#include "gait/CheckText.h"
#include "gait/Checks.h"
#include "support/RandomAccessFile.h"
#include "support/RuntimeError.h"

namespace modVantrel {

using modAllPurpose::ErrorNumber;
using modAllPurpose::RuntimeError;

namespace {

constexpr std::int32_t kFileKeyPosition = 2;
constexpr std::int32_t kPointCountPosition = 3;
constexpr std::int32_t kFirstFramePosition = 7;
constexpr std::int32_t kFirstBlockPosition = 17;
constexpr std::int32_t kRatePosition = 21;

std::string BytePlace(std::int64_t position) { return fmt::format("byte {}", position); }

// Where a finding stands, and its sentence.
struct Fault {
  std::string Place;
  std::string Sentence;
};

std::int64_t SectionStart(const CheckedTrial& trial) {
  return (std::int64_t{trial.Header.ParamBlockPointer} - 1) * kBlockSize + 1;
}

Fault NotOpened(const CheckedTrial& trial) {
  std::string reason = "it cannot be read";
  try {
    modAllPurpose::RandomAccessFile().Open(trial.State.OpenC3dFileSpec);
  } catch (const RuntimeError& error) {
    reason = error.what();
  }
  return {BytePlace(1), fmt::format("The file cannot be opened at all: {}.", reason)};
}

Fault WrongProcessor(const CheckedTrial& trial) {
  BinaryFile& file = trial.State.C3dFileNumber;
  const std::int64_t position = SectionStart(trial) + kParamBlockHeaderSize - 1;
  file.Seek(static_cast<std::int32_t>(position));
  const int processor = file.ReadByte();
  constexpr int kProcessorMips = 86;
  return {BytePlace(position),
          fmt::format("The numbers of the file are in {} form (byte {} is {}), and only those of "
                      "Intel ({}) and DEC ({}) processors are read: have it converted by the "
                      "system that wrote it.",
                      processor == kProcessorMips ? "MIPS" : "an unknown", position, processor,
                      kProcessorIntel, kProcessorDec)};
}

Fault WrongScale(const CheckedTrial& trial) {
  const auto value = trial.Param("POINT", "SCALE").SingleValues.First();
  const std::string header = NumberText(trial.Header.ScaleFactor);
  const std::string found =
      value ? fmt::format("is {} in the header and {} in POINT:SCALE", header, NumberText(*value))
            : fmt::format("is {} in the header and missing in POINT:SCALE", header);
  return {"POINT:SCALE", fmt::format("The scale factor of all positions {}; both must be the same "
                                     "number other than 0, so the file cannot be opened.",
                                     found)};
}

Fault WrongRate(const CheckedTrial& trial) {
  const std::string header = NumberText(trial.Header.PointFrameRate);
  const auto camera = trial.Param("TRIAL", "CAMERA_RATE").SingleValues.First();
  if (!camera) {
    return {BytePlace(kRatePosition),
            fmt::format("The frame rate is {} Hz in the header and TRIAL:CAMERA_RATE gives none; "
                        "it must be at least 1 Hz to tell any time, so the file cannot be opened.",
                        header)};
  }
  return {"TRIAL:CAMERA_RATE",
          fmt::format("The frame rate is {} Hz in TRIAL:CAMERA_RATE, which counts, and {} Hz in "
                      "the header; it must be at least 1 Hz to tell any time, so the file cannot "
                      "be opened.",
                      NumberText(*camera), header)};
}

Fault WrongFrames(const CheckedTrial& trial) {
  return {
      BytePlace(kFirstFramePosition),
      fmt::format("The frames of the header run from {} to {}, and from 1 to 32767 of them are "
                  "needed: the trial is empty or too long for this format and cannot be opened.",
                  trial.Header.FirstPointFrameNumber, trial.Header.LastPointFrameNumber)};
}

Fault FaultOfResult(const CheckedTrial& trial) {
  switch (trial.Outcome.Result) {
    case OpenResult::FileNotOpened:
      return NotOpened(trial);
    case OpenResult::FileKeyNotFound:
      return {BytePlace(kFileKeyPosition),
              fmt::format("This is no C3D file: its second byte is {} where {} is needed.",
                          trial.Header.FileID, kFileKey)};
    case OpenResult::ProcessorNotSupported:
      return WrongProcessor(trial);
    case OpenResult::MoreThanOneSubject:
      return {"SUBJECTS:USED",
              fmt::format("The file holds {} subjects, and only files of one can be opened: export "
                          "each subject to a file of its own.",
                          NumberText(NumberOf(trial.Param("SUBJECTS", "USED")).value_or(0)))};
    case OpenResult::ScaleFactorCorrupt:
      return WrongScale(trial);
    case OpenResult::NoPointLabels:
      return {BytePlace(kPointCountPosition),
              fmt::format("The header counts {}, and at least 1 is needed, so the file cannot be "
                          "opened.",
                          Counted(trial.Header.PointLabelCount, "point"))};
    case OpenResult::NoFrames:
      return WrongFrames(trial);
    case OpenResult::FrameRateNotSet:
      return WrongRate(trial);
    case OpenResult::SideFilesMissing:
      return {BytePlace(1), "The event file and the data file that belong beside it are missing."};
    case OpenResult::Success:
      break;
  }
  return {};
}

Fault FaultOfError(const CheckedTrial& trial, const RuntimeError& error) {
  const auto size = static_cast<std::int64_t>(trial.FileSize);
  if (!trial.HasHeader()) {
    return {BytePlace(size + 1),
            fmt::format("The file has only {} of the {} bytes that every C3D file begins with: it "
                        "is empty or was cut short.",
                        size, kBlockSize)};
  }
  if (!trial.HasParams()) {
    const std::int64_t start = SectionStart(trial);
    return {BytePlace(std::max<std::int64_t>(start, 1)),
            fmt::format("The parameters are said to begin in block {}, at byte {}, which is not in "
                        "the file of {} bytes: it was cut short or its first byte is damaged.",
                        trial.Header.ParamBlockPointer, start, size)};
  }
  const auto& chain = trial.Params->Fault();
  if (chain && chain->Error) {
    return {BytePlace(chain->Position),
            fmt::format("The file cannot be opened because its parameters cannot be read from byte "
                        "{} on ({}).",
                        chain->Position, error.what())};
  }
  if (trial.State.PointFrameCount < 1) return WrongFrames(trial);
  return {BytePlace(1), fmt::format("The file cannot be opened: a number in its header or its "
                                    "events is out of range ({}).",
                                    error.what())};
}

}  // namespace

void CheckOpen(const CheckedTrial& trial, Findings& findings) {
  const OpenOutcome& outcome = trial.Outcome;
  if (outcome.IsSuccess()) return;
  const Fault fault = outcome.Error ? FaultOfError(trial, *outcome.Error) : FaultOfResult(trial);
  findings.Add("cannot-open", fault.Place, fault.Sentence);
}

void CheckParameterChain(const CheckedTrial& trial, Findings& findings) {
  const auto& fault = trial.Params->Fault();
  if (!fault) return;
  const std::string place = BytePlace(fault->Position);
  if (!fault->Error) {
    findings.Add("parameters-damaged", place,
                 fmt::format("The parameters go on at byte {}, behind their own blocks and the "
                             "first frame (byte {}): what would be read there is no parameter.",
                             fault->Position, trial.State.SeekPtrForFirstFrameData));
  } else if (fault->Error->Number() == ErrorNumber::InputPastEndOfFile) {
    findings.Add("parameters-damaged", place,
                 fmt::format("The parameters break off: the one at byte {} reaches beyond the end "
                             "of the file ({} bytes), so it and all behind it are lost.",
                             fault->Position, trial.FileSize));
  } else {
    findings.Add("parameters-damaged", place,
                 fmt::format("The parameter at byte {} cannot be read ({}), so it and all behind "
                             "it are lost.",
                             fault->Position, fault->Error->what()));
  }
}

void CheckDataLength(const CheckedTrial& trial, Findings& findings) {
  const FileState& state = trial.State;
  if (state.PointFrameCount < 1 || LayoutOf(state).FrameSize < 1) return;
  if (trial.FrameCount >= state.PointFrameCount) return;
  if (state.SeekPtrForFirstFrameData < 1) {
    findings.Add("data-cut-short", BytePlace(kFirstBlockPosition),
                 fmt::format("The header names block 0 for the first frame, so none of its {} can "
                             "be found.",
                             Counted(state.PointFrameCount, "frame")));
    return;
  }
  findings.Add(
      "data-cut-short", BytePlace(static_cast<std::int64_t>(trial.FileSize)),
      fmt::format("The file ends at byte {} and holds {} of the {} that its header "
                  "counts: listings and curves end in an error, and what came later is "
                  "not in this copy.",
                  trial.FileSize, Counted(trial.FrameCount, "whole frame"), state.PointFrameCount));
}

}  // namespace modVantrel
