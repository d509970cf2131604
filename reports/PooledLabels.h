// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <set>
#include <string>
#include <vector>

#include "reports/TableOptions.h"

namespace reports {

// The labels that a pooled report is asked for: those of its options, or all where these name none.
class PooledLabels {
 public:
  explicit PooledLabels(const TableOptions& options);

  // Whether the label, or name, in the form of modAllPurpose::SearchKey is asked for.
  bool Include(const std::string& key) const { return asked_.empty() || asked_.contains(key); }

  // A sentence for each label of the options that is not among `held`, in the same form.
  Complaints Missing(const std::set<std::string>& held) const;

 private:
  std::vector<std::string> labels_;  // as they were given
  std::set<std::string> asked_;      // as they are compared
};

}  // namespace reports
