// SPDX-License-Identifier: GPL-3.0-or-later

#include "reports/VisitReport.h"

#include "reports/SummaryReport.h"
#include "visit/Summary.h"

namespace reports {

namespace {

class VisitReport : public PooledReport {
 public:
  std::function<void()> Read(const modVantrel::FileState& trial) override {
    return [this, measures = visit::MeasuresOfStrides(trial)] { summary_.Add(measures); };
  }

  Complaints WriteRows(TableOutput& table) const override {
    for (std::size_t i = 0; i < visit::kGaitMeasureCount; ++i) {
      SummaryValues(summary_, i, table);
      table.EndRow();
    }
    return {};
  }

  Complaints ShowText(modAllPurpose::ReportOutput& output) const override {
    output.BeginReport();
    ShowSummaryText(summary_, output);
    return {};
  }

 private:
  visit::Summary summary_;
};

}  // namespace

std::unique_ptr<PooledReport> MakeVisitReport(const TableOptions& /*options*/) {
  return std::make_unique<VisitReport>();
}

}  // namespace reports
