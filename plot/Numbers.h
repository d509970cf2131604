// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <vector>

#include <QString>

// Numbers beside axes and bars.
namespace plot {

// The whole multiples of `step` from `low` to `high`; none where there would be more than a
// hundred.
std::vector<double> TicksOf(double low, double high, double step);

// `tick`, or the least of 2, 5, 10, 20, 50 ... times it of which about twenty-five at most fit
// between `low` and `high`: what is drawn of the ticks of a wide range.
double ThinnedTick(double low, double high, double tick);

// A step of 1, 2 or 5 times a power of ten that leaves about `count` ticks in `span`.
double StepFor(double span, int count);

// How many decimals a multiple of `step` needs, at most four.
int DecimalsOf(double step);

// With a minus sign, not a hyphen, and never a zero with a sign.
QString NumberText(double value, int decimals);

}  // namespace plot
