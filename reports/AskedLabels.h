// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "reports/TableOptions.h"
#include "support/OneBasedTable.h"

namespace reports {

// Which of a trial's labels a table is asked for: their numbers, from 1, in the order asked, and a
// complaint for each that the trial lacks, "REFUSAL: LABEL".
struct AskedLabels {
  std::vector<std::int32_t> Numbers;
  Complaints Missing;
};

// All of `labels` by their place, or the first of each name that the options give, ignoring case
// and the blanks around it.
AskedLabels FindAskedLabels(const modAllPurpose::OneBasedTable<std::string>& labels,
                            const TableOptions& options, const std::string& refusal);

}  // namespace reports
