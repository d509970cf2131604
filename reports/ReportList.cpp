// SPDX-License-Identifier: GPL-3.0-or-later

#include "reports/ReportList.h"

#include <algorithm>

namespace reports {

const ReportInfo* FindReport(std::string_view name) {
  const auto* report = std::ranges::find(kReports, name, &ReportInfo::Name);
  return report == kReports.end() ? nullptr : report;
}

}  // namespace reports
