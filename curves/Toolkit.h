// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

namespace curves {

// Starts the toolkit for drawing in memory, where this process has not done so: no display is asked
// for, whatever the environment names, and nothing is said on the error stream but by an end of the
// process.
void StartToolkit();

}  // namespace curves
