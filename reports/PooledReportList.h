// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <memory>
#include <string>
#include <string_view>
#include <variant>

#include "reports/PooledReport.h"

namespace reports {

// The report of that name, which must be one of kReports that pools, or the sentence why there is
// none: the file of normal values, which only a report that needs it reads, is not there or is
// none.
std::variant<std::unique_ptr<PooledReport>, std::string> MakePooledReport(
    std::string_view name, const TableOptions& options, const std::string& normalFile);

}  // namespace reports
