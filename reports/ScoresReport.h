// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <array>
#include <memory>
#include <string_view>

#include "reports/PooledReport.h"
#include "visit/Normals.h"

namespace reports {

// The Gait Variable Scores and Gait Profile Scores over the complete strides of all trials. What a
// score lacks is complained of once, behind the rows. It takes no options.
std::unique_ptr<PooledReport> MakeScoresReport(const TableOptions& options, visit::Normals normals);

}  // namespace reports
