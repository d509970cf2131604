// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <array>
#include <memory>
#include <string_view>

#include "reports/PooledReport.h"

namespace reports {

// How far the curves of the labels asked for, or of all, lie apart over the complete strides of all
// trials. A trial without one of the labels asked for is complained of.
std::unique_ptr<PooledReport> MakeVariabilityReport(const TableOptions& options);

}  // namespace reports
