// SPDX-License-Identifier: GPL-3.0-or-later

#include "reports/NormsReport.h"

#include <set>
#include <utility>

#include <fmt/format.h>

#include "gait/CheckText.h"
#include "reports/AlignedText.h"
#include "reports/PooledLabels.h"
#include "reports/PooledNumbers.h"
#include "support/Text.h"
#include "visit/Norms.h"

namespace reports {

using modAllPurpose::ReportOutput;
using modVantrel::Component;
using modVantrel::Shown;
using visit::GaitMeasureSpec;
using visit::GaitMeasureTable;
using visit::NormCurves;
using visit::PercentOf;

namespace {

// What stands at one instant of a component.
struct NormAtInstant {
  std::int64_t Percent;
  std::optional<double> Mean;
  std::optional<double> Deviation;
};

std::vector<NormAtInstant> InstantsOf(const NormCurves& curves, Component part) {
  std::vector<NormAtInstant> instants;
  const auto mean = curves.Samples.Mean(part);
  const auto deviation = curves.Samples.Deviation(part);
  for (std::size_t i = 0; mean && i < visit::kInstants; ++i) {
    instants.push_back(
        {PercentOf(i), (*mean)[i], deviation ? std::optional((*deviation)[i]) : std::nullopt});
  }
  return instants;
}

void WriteCurves(const NormCurves& curves, TableOutput& table) {
  for (const Component part : modVantrel::kComponents) {
    for (const NormAtInstant& instant : InstantsOf(curves, part)) {
      table.Text(curves.Label);
      table.Text(ComponentName(part));
      table.Number(instant.Percent);
      NumberOrMissing(table, instant.Mean);
      NumberOrMissing(table, instant.Deviation);
      table.Number(curves.Samples.Count());
      table.TextOrMissing(curves.Unit);
      table.EndRow();
    }
  }
}

void ShowCurves(const NormCurves& curves, ReportOutput& output) {
  if (curves.Samples.Count() == 0) return;
  for (const Component part : modVantrel::kComponents) {
    AlignedText text({{"    %", Align::Right}, {"Mean ± deviation (samples)", Align::Right}});
    for (const NormAtInstant& instant : InstantsOf(curves, part)) {
      text.AddRow({std::to_string(instant.Percent),
                   StatisticsText(instant.Mean, instant.Deviation, curves.Samples.Count(), 2)});
    }
    const std::string unit = curves.Unit.empty() ? "" : fmt::format(" ({})", Shown(curves.Unit));
    output.Line(fmt::format("{} {}{}", Shown(curves.Label), ComponentName(part), unit));
    text.Print(output);
    output.Line("");
  }
}

class NormsReport : public PooledReport {
 public:
  explicit NormsReport(const TableOptions& options) : labels_(options) {}

  Complaints Missing(const modVantrel::FileState& trial) const override {
    std::set<std::string> held;
    for (const std::string& label : trial.PointLabels) {
      const std::string key = modAllPurpose::SearchKey(label);
      if (visit::IsNormLabel(key)) held.insert(key.substr(1));
    }
    return labels_.Missing(held);
  }

  std::function<void()> Read(const modVantrel::FileState& trial) override {
    auto curves = visit::CurvesOfTrial(trial, [this](const std::string& key) {
      return visit::IsNormLabel(key) && labels_.Include(key.substr(1));
    });
    return [this, curves = std::move(curves), measures = visit::MeasuresOfStrides(trial)] {
      norms_.Add(curves, measures);
    };
  }

  Complaints WriteRows(TableOutput& table) const override {
    for (const NormCurves& curves : norms_.Curves()) WriteCurves(curves, table);
    for (std::size_t i = 0; i < visit::kGaitMeasureCount; ++i) {
      table.Text(GaitMeasureTable()[i].Name);
      table.Missing();
      table.Missing();
      StatisticsValues(table, norms_.Measures()[i]);
      table.Text(GaitMeasureTable()[i].Unit);
      table.EndRow();
    }
    return {};
  }

  Complaints ShowText(ReportOutput& output) const override {
    output.BeginReport();
    for (const NormCurves& curves : norms_.Curves()) ShowCurves(curves, output);
    AlignedText text({{"Measure"}, {"Unit"}, {"Mean ± deviation (samples)", Align::Right}});
    for (std::size_t i = 0; i < visit::kGaitMeasureCount; ++i) {
      const GaitMeasureSpec& measure = GaitMeasureTable()[i];
      const visit::Statistics& samples = norms_.Measures()[i];
      text.AddRow({visit::MeasureTitle(measure.Name), std::string(measure.Unit),
                   StatisticsText(samples.Mean(), samples.Deviation(), samples.Count(),
                                  DecimalsFor(measure.Unit))});
    }
    text.Print(output);
    return {};
  }

 private:
  PooledLabels labels_;
  visit::Norms norms_;
};

}  // namespace

std::unique_ptr<PooledReport> MakeNormsReport(const TableOptions& options) {
  return std::make_unique<NormsReport>(options);
}

}  // namespace reports
