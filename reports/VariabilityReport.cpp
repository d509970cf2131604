// SPDX-License-Identifier: GPL-3.0-or-later

#include "reports/VariabilityReport.h"

#include <set>
#include <utility>

#include "gait/EventNames.h"
#include "reports/AlignedText.h"
#include "reports/PooledLabels.h"
#include "reports/PooledNumbers.h"
#include "support/Text.h"
#include "visit/Variability.h"

namespace reports {

using modVantrel::SideName;
using visit::VariabilityRow;

namespace {

class VariabilityReport : public PooledReport {
 public:
  explicit VariabilityReport(const TableOptions& options) : labels_(options) {}

  Complaints Missing(const modVantrel::FileState& trial) const override {
    std::set<std::string> held;
    for (const std::string& label : trial.PointLabels) held.insert(modAllPurpose::SearchKey(label));
    held.erase("");  // an empty label has no curves here
    return labels_.Missing(held);
  }

  std::function<void()> Read(const modVantrel::FileState& trial) override {
    auto curves = visit::CurvesOfTrial(
        trial, [this](const std::string& key) { return labels_.Include(key); });
    return [this, curves = std::move(curves)] { variability_.Add(curves); };
  }

  Complaints WriteRows(TableOutput& table) const override {
    for (const VariabilityRow& row : variability_.Rows()) {
      table.Text(SideName(row.Side));
      table.Text(row.Label);
      table.Text(ComponentName(row.Part));
      table.Number(row.Count);
      NumberOrMissing(table, row.Deviation);
      table.TextOrMissing(row.Unit);
      table.EndRow();
    }
    return {};
  }

  Complaints ShowText(modAllPurpose::ReportOutput& output) const override {
    AlignedText text(
        {{"Side"}, {"Label"}, {"Component"}, {"Deviation (strides)", Align::Right}, {"Unit"}});
    for (const VariabilityRow& row : variability_.Rows()) {
      text.AddRow({std::string(SideName(row.Side)), row.Label, std::string(ComponentName(row.Part)),
                   CountedText(row.Deviation, row.Count, 2), row.Unit});
    }
    output.BeginReport();
    text.Print(output);
    return {};
  }

 private:
  PooledLabels labels_;
  visit::Variability variability_;
};

}  // namespace

std::unique_ptr<PooledReport> MakeVariabilityReport(const TableOptions& options) {
  return std::make_unique<VariabilityReport>(options);
}

}  // namespace reports
