// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <array>
#include <memory>
#include <string_view>

#include "reports/PooledReport.h"

namespace reports {

// The conventional measures over the complete strides of all trials. It takes no options.
std::unique_ptr<PooledReport> MakeVisitReport(const TableOptions& options);

}  // namespace reports
