// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <string>

#include "c3d/FileState.h"

namespace fuzz {

// Opens the file at `path` and, where that succeeds, runs every report on it, the listings of some
// of its labels with and without events, the texts of its GCD files and its pages. A result code or
// a RuntimeError is an answer like any other; everything else leaves this function.
void ExerciseTrial(const std::string& path);

// Checks the file at `path`, which ends in no error whatever it holds.
void ExerciseCheckup(const std::string& path);

// The same for a file that is open.
void ExerciseOpenFile(const modVantrel::FileState& state);

}  // namespace fuzz
