// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <vector>

#include <QString>

#include "pages/Page.h"
#include "plot/Texts.h"

namespace plot {

// The names of trials without their folders, in one or two lines no wider than `room`. Where they
// do not fit, long ones are shortened in the middle, and then the last are counted.
std::vector<QString> TrialNameLines(const std::vector<pages::PageFile>& files,
                                    const TextStyle& style, double room);

}  // namespace plot
