// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstdint>
#include <functional>
#include <optional>
#include <string>
#include <string_view>

#include "c3d/FileState.h"
#include "support/RuntimeError.h"

namespace modVantrel {

// How an open ended. The numbers are the result codes that users know.
enum class OpenResult : std::int32_t {
  Success = 0,
  FileNotOpened = 1,
  FileKeyNotFound = 2,
  ProcessorNotSupported = 3,
  MoreThanOneSubject = 4,
  ScaleFactorCorrupt = 5,
  NoPointLabels = 6,
  NoFrames = 7,
  FrameRateNotSet = 8,
  SideFilesMissing = 9,
};

// The sentence a user sees for a failed open; empty for success.
std::string_view OpenFailureMessage(OpenResult result);

// What an open runs at its end to find events and strides in the file.
using EventSteps = std::function<void(FileState&)>;

// Opens the C3D file at `fileSpec` (UTF-8), checks it, fills `state` and runs `findEvents`. On
// success the file stays open for reading its frames.
//
// Checks are made in a fixed order, so a file with several faults reports the first one met. A
// failure closes the file and leaves `state` as far as the attempt got. Faults that have no result
// code (a 16-bit overflow of the frame count, a chain that leaves the file) are run-time errors;
// they close the file too.
OpenResult OpenC3dFile(FileState& state, const std::string& fileSpec, const EventSteps& findEvents);

// What an open ends in: success, a result code, or a run-time error.
struct OpenOutcome {
  OpenResult Result = OpenResult::Success;
  std::optional<modAllPurpose::RuntimeError> Error;

  bool IsSuccess() const { return Result == OpenResult::Success && !Error; }
};

// Fills a fresh `state` like OpenC3dFile, but goes on behind a fault with all that the file still
// tells, and leaves the file open. Comes back with what OpenC3dFile would have ended in. A
// ProcessorType of 0 says that nothing behind the header could be made out, a TimeBetweenFrames of
// 0 that the times and so the events are not known.
OpenOutcome ExamineC3dFile(FileState& state, const std::string& fileSpec,
                           const EventSteps& findEvents);

}  // namespace modVantrel
