// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "c3d/FileState.h"
#include "reports/Table.h"
#include "reports/TableOptions.h"
#include "support/ReportOutput.h"

namespace reports {

// A report over the strides of several trials. It takes one open trial after the other, keeps
// values alone, and is written behind the last one.
class PooledReport {
 public:
  PooledReport() = default;
  PooledReport(const PooledReport&) = delete;
  PooledReport& operator=(const PooledReport&) = delete;
  virtual ~PooledReport() = default;

  // A complaint for each label asked for that an open trial, whose further labels were added,
  // lacks.
  virtual Complaints Missing(const modVantrel::FileState& /*trial*/) const { return {}; }

  // Takes in the strides of such a trial. A RuntimeError leaves the report as it was without it.
  virtual void Add(const modVantrel::FileState& trial) = 0;

  // Writes the rows, without Begin and End, or the aligned text. What could not be worked out comes
  // back.
  virtual Complaints WriteRows(TableOutput& table) const = 0;
  virtual Complaints ShowText(modAllPurpose::ReportOutput& output) const = 0;
};

}  // namespace reports
