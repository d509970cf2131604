// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <array>
#include <memory>
#include <string_view>

#include "reports/PooledReport.h"

namespace reports {

// What is normal, from trials of controls: the curves of the labels asked for, given without their
// letter, or of all that begin with L or R, then the conventional measures. A trial that has a
// label asked for on neither side is complained of. As csv it is what visit::ReadNormalFile reads.
std::unique_ptr<PooledReport> MakeNormsReport(const TableOptions& options);

}  // namespace reports
