// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <string>

#include "sample/TrialBuilder.h"

namespace tests {

// A trial whose parameters report is more than a megabyte, handed over in several pieces; most of
// it is the group "LONG".
sample::TrialBuilder LongTrial();

// The report of that group.
std::string ReportOfLongGroup();

}  // namespace tests
