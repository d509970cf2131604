// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <array>
#include <memory>
#include <string_view>

#include "reports/PooledReport.h"

namespace reports {

inline constexpr std::array<std::string_view, 9> kVisitColumns = {
    "measure",    "unit",     "left_mean", "left_sd",  "left_n",
    "right_mean", "right_sd", "right_n",   "asymmetry"};

// The conventional measures over the complete strides of all trials. It takes no options.
std::unique_ptr<PooledReport> MakeVisitReport(const TableOptions& options);

}  // namespace reports
