// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <functional>

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

  // Reads the strides of such a trial and answers with what takes them in. Trials may be read by
  // several threads at once, and are taken in by one thread in the order that the report is to
  // have. A RuntimeError of either leaves the report as it was without the trial.
  virtual std::function<void()> Read(const modVantrel::FileState& trial) = 0;

  // Reads a trial and takes it in.
  void Add(const modVantrel::FileState& trial) { Read(trial)(); }

  // Writes the rows, without Begin and End, or the aligned text. What could not be worked out comes
  // back.
  virtual Complaints WriteRows(TableOutput& table) const = 0;
  virtual Complaints ShowText(modAllPurpose::ReportOutput& output) const = 0;
};

}  // namespace reports
