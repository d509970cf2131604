// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "gait/CheckFindings.h"
#include "gait/CheckedTrial.h"

// The checks of a trial by their subjects. Each adds its findings; an error while reading is passed
// on, and what was found before it stands.
namespace modVantrel {

// cannot-open, parameters-damaged, data-cut-short
void CheckOpen(const CheckedTrial& trial, Findings& findings);
void CheckParameterChain(const CheckedTrial& trial, Findings& findings);
void CheckDataLength(const CheckedTrial& trial, Findings& findings);

// frame-count, first-frame, rate-overridden, point-count, analog-layout
void CheckFrameCount(const CheckedTrial& trial, Findings& findings);
void CheckFirstFrame(const CheckedTrial& trial, Findings& findings);
void CheckRate(const CheckedTrial& trial, Findings& findings);
void CheckPointCount(const CheckedTrial& trial, Findings& findings);
void CheckAnalogLayout(const CheckedTrial& trial, Findings& findings);

// labels-..., label-single-letter, unlabelled-points
void CheckLabels(const CheckedTrial& trial, Findings& findings);

// point-gaps, point-never-seen, and of the strides toe-markers, walk-along-y, walk-turns,
// walk-in-place: all that comes from the frames, which are read once.
void CheckFrames(const CheckedTrial& trial, Findings& findings);

// units, moment-units
void CheckUnits(const CheckedTrial& trial, Findings& findings);

// events-none, event-..., strides-none
void CheckEvents(const CheckedTrial& trial, Findings& findings);

// analysis-differs
void CheckAnalysis(const CheckedTrial& trial, const SummaryStrides& summary, Findings& findings);

// force-plates
void CheckForcePlates(const CheckedTrial& trial, Findings& findings);

// subject-missing, subject-date
void CheckSubject(const CheckedTrial& trial, Findings& findings);

}  // namespace modVantrel
