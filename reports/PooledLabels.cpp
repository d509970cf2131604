// SPDX-License-Identifier: GPL-3.0-or-later

#include "reports/PooledLabels.h"

#include "support/Text.h"

namespace reports {

using modAllPurpose::SearchKey;

PooledLabels::PooledLabels(const TableOptions& options) {
  if (options.AllLabels) return;
  for (const std::string& label : options.Labels) {
    if (asked_.insert(SearchKey(label)).second) labels_.push_back(label);
  }
}

Complaints PooledLabels::Missing(const std::set<std::string>& held) const {
  Complaints complaints;
  for (const std::string& label : labels_) {
    if (!held.contains(SearchKey(label))) complaints.push_back("point label not found: " + label);
  }
  return complaints;
}

}  // namespace reports
