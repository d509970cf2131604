// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "gait/Checkup.h"
#include "reports/Table.h"
#include "support/ReportOutput.h"

// What CheckTrial found in a trial.
namespace reports {

// The findings in `file`, the values that it gives itself compared with those of its summary.
std::vector<modVantrel::Finding> CheckFile(const std::string& file);

// The rows of one file, which stands in the first column as `file`. Begin and End are the caller's.
void CheckRows(std::string_view file, const std::vector<modVantrel::Finding>& findings,
               TableOutput& table);

// The findings as an aligned table of severity, code, place and sentence, or one line that there
// are none.
void ShowFindings(const std::vector<modVantrel::Finding>& findings,
                  modAllPurpose::ReportOutput& output);

}  // namespace reports
