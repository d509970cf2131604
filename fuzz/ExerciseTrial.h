#pragma once

#include <string>

namespace fuzz {

// Opens the file at `path` and, where that succeeds, runs every report on it, the listings of some
// of its labels with and without events, and the texts of its GCD files. A result code or a
// RuntimeError is an answer like any other; everything else leaves this function.
void ExerciseTrial(const std::string& path);

}  // namespace fuzz
