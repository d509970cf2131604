// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <vector>

#include "gait/Checkup.h"
#include "sample/TrialBuilder.h"
#include "tests/TestTrials.h"

// Trials for the checkup: one with nothing to find, to which each test adds one fault.
namespace tests {

// 3 s of a walk along X at 100 frames a second, in mm and floats, with two strides, toe markers, a
// knee marker, one channel and a subject. Its left toe goes 16 mm a frame.
sample::TrialBuilder CleanWalk();
inline constexpr std::size_t kLeftToe = 1;
inline constexpr std::size_t kRightToe = 2;
inline constexpr std::size_t kLeftKnee = 3;

// Leaves a point, by its number, unseen in the frames `first` to `last`.
sample::TrialBuilder& Hide(sample::TrialBuilder& builder, std::size_t point, std::int32_t first,
                           std::int32_t last);

// The clean walk without its events.
sample::TrialBuilder CleanWalkWithoutEvents();

std::vector<modVantrel::Finding> Check(const sample::Trial& trial,
                                       const modVantrel::SummaryStrides& summary = {});
std::vector<modVantrel::Finding> Check(const sample::TrialBuilder& builder,
                                       const modVantrel::SummaryStrides& summary = {});
std::vector<modVantrel::Finding> CheckBytes(const std::string& bytes);

// "labels-empty at POINT:LABELS", one for each finding.
std::vector<std::string> Places(const std::vector<modVantrel::Finding>& findings);

// The sentence of the only finding of that code; fails the test where there is none or another.
std::string MessageOf(const std::vector<modVantrel::Finding>& findings, const std::string& code);

bool HasCode(const std::vector<modVantrel::Finding>& findings, const std::string& code);

}  // namespace tests
